#include "analysis/PolyRoots.h"

#include <array>
#include <cmath>

#include "base/Assert.h"

int quadraticRoots(double a, double b, double c, double& r1, double& i1, double& r2, double& i2) {
    if (a == 0.0) {
        if (b == 0.0) return 0;
        r1 = r2 = -c / b;
        i1 = i2 = 0.0;
        return 1;
    }
    const double discriminant = b * b - 4.0 * a * c;
    if (discriminant >= 0.0) {
        // The root of larger size first, then the other from the product of the two, which loses no digits
        // when b dominates.
        const double q = -0.5 * (b + std::copysign(std::sqrt(discriminant), b));
        r1 = q / a;
        r2 = q != 0.0 ? c / q : 0.0;
        i1 = i2 = 0.0;
    } else {
        r1 = r2 = -b / (2.0 * a);
        i1 = std::sqrt(-discriminant) / (2.0 * a);
        i2 = -i1;
    }
    return 1;
}

namespace {

constexpr int kMaxIterations = 100;
constexpr int kMaxRestarts = 100;

// Divides poly (degree n) by x^2 + p x + q: quotient in b[2..n], remainder terms in b[0] and b[1].
void divide(const double* poly, int n, double p, double q, double* b) {
    b[n] = poly[n];
    b[n - 1] = poly[n - 1] - p * b[n];
    for (int k = n - 2; k >= 0; --k) b[k] = poly[k] - p * b[k + 1] - q * b[k + 2];
}

// Both divisions of a Newton step in one pass: b as divide() gives it, and c, the division of b[1..n] the same
// way (c[n] = b[n], c[n-1] = b[n-1] - p c[n], c[k] = b[k] - p c[k+1] - q c[k+2] down to c[1]). The same
// operations in the same order, with the running terms kept in registers.
void divideTwice(const double* poly, int n, double p, double q, double* b, double* c) {
    double b2 = poly[n];
    double b1 = poly[n - 1] - p * b2;
    double c2 = b2;
    double c1 = b1 - p * c2;
    b[n] = b2;
    b[n - 1] = b1;
    c[n] = c2;
    c[n - 1] = c1;
    for (int k = n - 2; k >= 1; --k) {
        const double bk = poly[k] - p * b1 - q * b2;
        const double ck = bk - p * c1 - q * c2;
        b[k] = bk;
        c[k] = ck;
        b2 = b1;
        b1 = bk;
        c2 = c1;
        c1 = ck;
    }
    b[0] = poly[0] - p * b1 - q * b2;
}

enum class FactorSearch { Found, Failed, NeedsRestart };

// Newton's method on the remainder of the division, for the quadratic factor x^2 + p x + q of poly; `restart`
// counts the fresh starts drawn so far and goes on from there.
FactorSearch findFactor(const double* poly, int n, double& p, double& q, int& restart, ClassicRand* random) {
    std::array<double, kMaxRootOrder + 2> b{};
    std::array<double, kMaxRootOrder + 2> c{};
    for (; restart <= kMaxRestarts; ++restart) {
        if (restart > 0) {
            if (random == nullptr) return FactorSearch::NeedsRestart;
            p = (random->next() - 1073741824.0) * -4.656612873077393e-10;
            q = (random->next() - 1073741824.0) * -4.656612873077393e-10;
        }
        for (int iteration = 0; iteration < kMaxIterations; ++iteration) {
            divideTwice(poly, n, p, q, b.data(), c.data());
            if (std::fabs(b[0]) + std::fabs(b[1]) <= 1e-06) return FactorSearch::Found;
            const double denominator = c[2] * c[2] - c[1] * c[3];
            if (denominator == 0.0) return FactorSearch::Failed;
            p += (b[1] * c[2] - b[0] * c[3]) / denominator;
            q += (b[0] * c[2] - b[1] * c[1]) / denominator;
        }
    }
    return FactorSearch::Failed;
}

}  // namespace

RootSearchState startRootSearch(std::span<const double> a, int order) {
    SONALYS_ASSERT(order >= 1 && order <= kMaxRootOrder && static_cast<int>(a.size()) > order);
    RootSearchState state;
    for (int i = 0; i <= order; ++i) state.poly[i] = a[i];
    state.degree = order;
    return state;
}

RootSearch continueRootSearch(RootSearchState& state, std::span<double> rootsReal, std::span<double> rootsImag,
                              ClassicRand* random) {
    SONALYS_ASSERT(static_cast<int>(rootsReal.size()) > state.degree &&
                   static_cast<int>(rootsImag.size()) > state.degree);
    std::array<double, kMaxRootOrder + 2> quotient{};
    while (state.degree > 2) {
        const int n = state.degree;
        double p = 0.0;
        double q = 0.0;
        if (state.restart == 0) {
            double re = rootsReal[n - 1];
            double im = rootsImag[n - 1];
            if (std::fabs(re) < 1e-10) re = 0.0;
            if (std::fabs(im) < 1e-10) im = 0.0;
            p = -2.0 * re;
            q = re * re + im * im;
        }
        switch (findFactor(state.poly.data(), n, p, q, state.restart, random)) {
        case FactorSearch::Found: break;
        case FactorSearch::Failed: return RootSearch::Failed;
        case FactorSearch::NeedsRestart: return RootSearch::NeedsRestart;
        }
        quadraticRoots(1.0, p, q, rootsReal[n - 1], rootsImag[n - 1], rootsReal[n - 2], rootsImag[n - 2]);
        // The factor's quotient is the polynomial left.
        divide(state.poly.data(), n, p, q, quotient.data());
        for (int i = 0; i <= n - 2; ++i) state.poly[i] = quotient[i + 2];
        state.degree = n - 2;
        state.restart = 0;
    }
    const std::array<double, kMaxRootOrder + 1>& poly = state.poly;
    if (state.degree == 2) {
        quadraticRoots(poly[2], poly[1], poly[0], rootsReal[1], rootsImag[1], rootsReal[0], rootsImag[0]);
    } else if (state.degree == 1) {
        rootsReal[0] = poly[1] != 0.0 ? -poly[0] / poly[1] : 100.0;
        rootsImag[0] = 0.0;
    }
    state.degree = 0;
    return RootSearch::Found;
}

bool polyRoots(std::span<const double> a, int order, std::span<double> rootsReal, std::span<double> rootsImag,
               ClassicRand& random) {
    RootSearchState state = startRootSearch(a, order);
    return continueRootSearch(state, rootsReal, rootsImag, &random) == RootSearch::Found;
}
