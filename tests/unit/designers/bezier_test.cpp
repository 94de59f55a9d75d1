// The weights and samples of Bezier curves.

#include "designers/bezier.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

namespace coinlet {
namespace {

/// By the rule itself, each from scratch.
double SlowFact(int n) {
    return n <= 1 ? 1.0 : n * SlowFact(n - 1);
}
double SlowWeight(int i, int n, double t) {
    return SlowFact(n) / (SlowFact(i) * SlowFact(n - i)) * std::pow(t, i) * std::pow(1 - t, n - i);
}

TEST(Factorial, IsAProductFromOneOn) {
    EXPECT_EQ(fact(0), 1);
    EXPECT_EQ(fact(1), 1);
    EXPECT_EQ(fact(5), 120);
    EXPECT_EQ(fact(18), 6402373705728000.0);  // whole, below 2^53
    EXPECT_NEAR(fact(100) / 9.33262154439441e157, 1, 1e-14);
    EXPECT_EQ(fact(-3), 1);
    for (int n = 0; n <= 170; ++n)
        EXPECT_EQ(fact(n), SlowFact(n)) << n;
}

TEST(Binomial, IsPascalsTriangle) {
    EXPECT_EQ(C(0, 0), 1);
    EXPECT_EQ(C(4, 2), 6);
    EXPECT_EQ(C(10, 3), 120);
    EXPECT_NEAR(C(100, 50) / 1.0089134454556420e29, 1, 1e-14);
    for (int n = 1; n <= 100; ++n) {
        for (int k = 1; k < n; ++k)
            EXPECT_NEAR(C(n, k) / (C(n - 1, k - 1) + C(n - 1, k)), 1, 1e-13) << n << " over " << k;
    }
}

TEST(BernsteinWeight, IsOneAtTheEnds) {
    for (const int n : {1, 2, 20, 100}) {
        EXPECT_EQ(B(0, n, 0), 1);
        EXPECT_EQ(B(n, n, 0), 0);
        EXPECT_EQ(B(n, n, 1), 1);
        EXPECT_EQ(B(0, n, 1), 0);
    }
    EXPECT_DOUBLE_EQ(B(1, 3, 0.25), 3 * 0.25 * 0.75 * 0.75);
}

TEST(BernsteinWeight, AllAreOneTogether) {
    for (const int n : {1, 7, 50, 100}) {
        for (const double t : {0.0, 0.01, 0.5, 0.77, 0.99}) {
            double sum = 0;
            for (int i = 0; i <= n; ++i)
                sum += B(i, n, t);
            EXPECT_NEAR(sum, 1, 1e-11) << n << ", " << t;
        }
    }
}

// Sums of doubles that are equal in each bit, for every degree; whatever degree was asked for before.
TEST(BezierSampler, IsTheSumOfTheRuleForEveryDegree) {
    BezierSampler sampler(0.01);
    std::vector<std::int16_t> x, y;
    for (int degree = 0; degree <= 100; ++degree) {
        x.push_back(static_cast<std::int16_t>((degree * 7919 + 13) % 500));
        y.push_back(static_cast<std::int16_t>((degree * 104729 + 77) % 500 - 20));
        const std::vector<CurvePoint> curve = sampler.Sample(x, y);
        std::size_t sample = 0;
        for (double t = 0; t <= 1; t += 0.01, ++sample) {
            ASSERT_LT(sample, curve.size());
            double slowX = 0, slowY = 0;
            for (int i = 0; i <= degree; ++i) {
                const double weight = SlowWeight(i, degree, t);
                ASSERT_EQ(B(i, degree, t), weight);
                slowX += weight * x[static_cast<std::size_t>(i)];
                slowY += weight * y[static_cast<std::size_t>(i)];
            }
            ASSERT_EQ(curve[sample].x, slowX) << degree << ", " << t;
            ASSERT_EQ(curve[sample].y, slowY) << degree << ", " << t;
        }
        EXPECT_EQ(sample, curve.size());
    }
}

TEST(BezierSampler, EndsALittleBeforeTheEnd) {
    BezierSampler sampler(0.01);
    const std::vector<std::int16_t> x{0, 1000}, y{0, 100};
    const std::vector<CurvePoint> curve = sampler.Sample(x, y);
    ASSERT_EQ(curve.size(), 100U);
    EXPECT_EQ(curve.front().x, 0);
    EXPECT_NEAR(curve.back().x, 990, 1e-9);
    EXPECT_NEAR(curve.back().y, 99, 1e-9);
}

TEST(BezierSampler, OnePointIsAPointAndNoneIsNothing) {
    BezierSampler sampler(0.25);
    const std::vector<std::int16_t> x{7}, y{-9};
    const std::vector<CurvePoint> curve = sampler.Sample(x, y);
    ASSERT_EQ(curve.size(), 5U);
    for (const CurvePoint& point : curve) {
        EXPECT_EQ(point.x, 7);
        EXPECT_EQ(point.y, -9);
    }
    EXPECT_TRUE(sampler.Sample({}, {}).empty());
}

}  // namespace
}  // namespace coinlet
