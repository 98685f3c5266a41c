#include "analysis/Fft.h"

#include <gtest/gtest.h>

#include <complex>
#include <numbers>
#include <random>
#include <vector>

// The plain sum that defines the bins, in double precision.
static std::complex<double> dftBin(const std::vector<float>& x, int k) {
    std::complex<double> sum = 0.0;
    const auto n = static_cast<double>(x.size());
    for (std::size_t i = 0; i < x.size(); ++i)
        sum += static_cast<double>(x[i]) * std::polar(1.0, -2.0 * std::numbers::pi * k * static_cast<double>(i) / n);
    return sum;
}

TEST(RealFft, BinsMatchThePlainTransformAtEveryLengthUsed) {
    std::mt19937 random(5);
    std::uniform_int_distribution<int> sample(-32768, 32767);
    for (int size : {2, 4, 8, 256, 512, 1024, 2048, 4096}) {
        RealFft fft(size);
        std::vector<float> x(static_cast<std::size_t>(size));
        for (float& v : x) v = static_cast<float>(sample(random));
        std::copy(x.begin(), x.end(), fft.input().begin());
        const auto bins = fft.transform();
        ASSERT_EQ(bins.size(), static_cast<std::size_t>(size / 2 + 1));
        // Single precision over log2(size) stages: an error well below 1e-5 of the largest possible bin.
        const double tolerance = 1e-5 * 32768.0 * size;
        for (int k = 0; k <= size / 2; k += (size > 256 ? 7 : 1)) {
            const std::complex<double> expected = dftBin(x, k);
            EXPECT_NEAR(bins[k].real(), expected.real(), tolerance) << "size " << size << " bin " << k;
            EXPECT_NEAR(bins[k].imag(), expected.imag(), tolerance) << "size " << size << " bin " << k;
        }
        EXPECT_EQ(bins[0].imag(), 0.0f);
        EXPECT_EQ(bins[static_cast<std::size_t>(size / 2)].imag(), 0.0f);
    }
}
