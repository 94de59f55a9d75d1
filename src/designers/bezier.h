#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace coinlet {

/// The factorial of a whole number from 0 on, finite up to 170; below 0 it is 1.
double fact(int N);

/// The binomial coefficient of 0 <= K <= N; finite for N up to 170.
double C(int N, int K);

/// The Bernstein weight of control point I, from 0 to N, of a curve of degree N at the parameter T. This is
/// the rule in its plain form, which tests compare with: `BezierSampler` finds its binomials once a degree,
/// not once a weight.
double B(int I, int N, double T);

/// A point of a curve, in pixels and not yet rounded.
struct CurvePoint {
    double x = 0, y = 0;
};

/// The points of Bezier curves at the parameters 0, step, 2 step and so on up to 1, where each is the sum of
/// the step before and so carries its rounding along: 0.01 ends at about 0.99. The weights depend on the
/// degree alone. They are kept until another degree is asked for, so that a drag, which redraws at every
/// move, only sums.
class BezierSampler {
public:
    /// `step` must be above 0.
    explicit BezierSampler(double step);

    /// The curve whose control points have these coordinates; at least one, and both of one length.
    std::vector<CurvePoint> Sample(std::span<const std::int16_t> pointX,
                                   std::span<const std::int16_t> pointY);

private:
    void TakeDegree(std::size_t degree);

    std::vector<double> parameters_;
    std::vector<double> weights_;  ///< Those of the first parameter, then of the next one.
    std::size_t points_ = 0;       ///< The number of control points that they are for.
};

}  // namespace coinlet
