#include "analysis/PolyRoots.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <complex>
#include <vector>

#include "AnalysisTestSupport.h"
#include "analysis/FormantPoles.h"

namespace {

using Complex = std::complex<double>;

std::vector<Complex> sorted(std::vector<Complex> v) {
    std::sort(v.begin(), v.end(),
              [](Complex x, Complex y) { return x.real() != y.real() ? x.real() < y.real() : x.imag() < y.imag(); });
    return v;
}

}  // namespace

TEST(QuadraticRoots, RealComplexAndStraightLineCases) {
    double r1, i1, r2, i2;
    ASSERT_EQ(quadraticRoots(1.0, -3.0, 2.0, r1, i1, r2, i2), 1);
    EXPECT_EQ((std::array{std::min(r1, r2), std::max(r1, r2)}), (std::array{1.0, 2.0}));
    EXPECT_EQ(i1, 0.0);
    ASSERT_EQ(quadraticRoots(1.0, 0.0, 1.0, r1, i1, r2, i2), 1);
    EXPECT_EQ((std::array{r1, i1, r2, i2}), (std::array{0.0, 1.0, 0.0, -1.0}));
    ASSERT_EQ(quadraticRoots(0.0, 2.0, -4.0, r1, i1, r2, i2), 1);
    EXPECT_EQ(r1, 2.0);
    EXPECT_EQ(quadraticRoots(0.0, 0.0, 5.0, r1, i1, r2, i2), 0);
}

TEST(PolyRoots, FindsEveryRootOfEvenAndOddOrders) {
    const std::vector<std::vector<Complex>> cases{
        {{0.5, 0.7}, {0.5, -0.7}, {-0.3, 0.2}, {-0.3, -0.2}, {1.5, 0.0}, {-2.0, 0.0}, {0.9, 0.1}, {0.9, -0.1}},
        {{2.0, 0.0}, {-1.0, 0.0}, {0.5, 0.5}, {0.5, -0.5}, {3.0, 0.0}},
    };
    for (const auto& roots : cases) {
        const int order = static_cast<int>(roots.size());
        RootEstimates estimates;
        seedRootEstimates(estimates, order);
        ClassicRand random;
        ASSERT_TRUE(polyRoots(fromRoots(roots), order, estimates.real, estimates.imag, random)) << order;
        std::vector<Complex> found;
        for (int i = 0; i < order; ++i) found.emplace_back(estimates.real[i], estimates.imag[i]);
        const auto expected = sorted(roots);
        found = sorted(found);
        for (int i = 0; i < order; ++i) EXPECT_NEAR(std::abs(found[i] - expected[i]), 0.0, 1e-5) << order;
    }
}

TEST(PolyRoots, FirstOrderAndHopelessCases) {
    RootEstimates estimates;
    ClassicRand random;
    ASSERT_TRUE(polyRoots(std::vector<double>{2.0, 4.0}, 1, estimates.real, estimates.imag, random));
    EXPECT_EQ(estimates.real[0], -0.5);
    ASSERT_TRUE(polyRoots(std::vector<double>{2.0, 0.0}, 1, estimates.real, estimates.imag, random));
    EXPECT_EQ(estimates.real[0], 100.0);
    // The polynomial of a silent frame, 1 alone, has no quadratic factor: the Newton step divides by 0.
    std::vector<double> one(13, 0.0);
    one[0] = 1.0;
    seedRootEstimates(estimates, 12);
    EXPECT_FALSE(polyRoots(one, 12, estimates.real, estimates.imag, random));
}

TEST(ClassicRand, GivesTheSmallRangeSequenceFromSeedOne) {
    ClassicRand random;
    for (int expected : {41, 18467, 6334, 26500, 19169, 15724}) EXPECT_EQ(random.next(), expected);
}
