#include "designers/bezier.h"

#include <cmath>

namespace coinlet {

namespace {

/// The weight by its binomial coefficient.
double Weight(double binomial, int I, int N, double T) {
    return binomial * std::pow(T, I) * std::pow(1 - T, N - I);
}

}  // namespace

double fact(int N) {
    double product = 1;
    for (int factor = 2; factor <= N; ++factor)
        product *= factor;
    return product;
}

double C(int N, int K) {
    return fact(N) / (fact(K) * fact(N - K));
}

double B(int I, int N, double T) {
    return Weight(C(N, I), I, N, T);
}

BezierSampler::BezierSampler(double step) {
    for (double t = 0; t <= 1; t += step)
        parameters_.push_back(t);
}

void BezierSampler::TakeDegree(std::size_t degree) {
    points_ = degree + 1;
    weights_.clear();
    weights_.reserve(parameters_.size() * points_);
    const auto n = static_cast<int>(degree);
    std::vector<double> binomials;
    for (int i = 0; i <= n; ++i)
        binomials.push_back(C(n, i));
    for (const double t : parameters_) {
        for (int i = 0; i <= n; ++i)
            weights_.push_back(Weight(binomials[static_cast<std::size_t>(i)], i, n, t));
    }
}

std::vector<CurvePoint> BezierSampler::Sample(std::span<const std::int16_t> pointX,
                                              std::span<const std::int16_t> pointY) {
    if (pointX.empty()) return {};
    if (pointX.size() != points_) TakeDegree(pointX.size() - 1);
    std::vector<CurvePoint> curve;
    curve.reserve(parameters_.size());
    const double* weight = weights_.data();
    for (std::size_t sample = 0; sample < parameters_.size(); ++sample) {
        CurvePoint sum;
        for (std::size_t i = 0; i < points_; ++i, ++weight) {
            sum.x += *weight * pointX[i];
            sum.y += *weight * pointY[i];
        }
        curve.push_back(sum);
    }
    return curve;
}

}  // namespace coinlet
