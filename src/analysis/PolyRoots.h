// Roots of the real polynomials of the formant chain, by Bairstow's method with deflation.
#pragma once

#include <array>
#include <cstdint>
#include <span>

inline constexpr int kMaxRootOrder = 30;

// The pseudo-random numbers of a classic C library whose rand() stays within 0 to 32767: the restart values of
// the root search come from it, so they stay close to 0.5.
class ClassicRand {
public:
    int next() noexcept {
        m_state = m_state * 214013u + 2531011u;
        return static_cast<int>((m_state >> 16) & 0x7FFFu);
    }

private:
    std::uint32_t m_state = 1;
};

// The roots of a x^2 + b x + c: returns 1, or 0 if a and b are both 0. A complex pair has its positive
// imaginary part in i1 (for positive a); with a of 0 both roots are the one root of the line.
int quadraticRoots(double a, double b, double c, double& r1, double& i1, double& r2, double& i2);

enum class RootSearch { Found, Failed, NeedsRestart };

// Where a root search stands: the polynomial left after the factors found so far, and the restarts already drawn
// for the factor being sought.
struct RootSearchState {
    std::array<double, kMaxRootOrder + 1> poly{};
    int degree = 0;
    int restart = 0;
};

// A search of the roots of a[0] + a[1] x + ... + a[order] x^order, not yet begun.
RootSearchState startRootSearch(std::span<const double> a, int order);

// Goes on with a search. On entry rootsReal/rootsImag hold the estimates (order + 1 values each); on return with
// Found the roots are at 0 to order - 1. Each quadratic factor starts from the estimate at the top position still
// open and is sought by Newton steps, at most 100, then from a fresh start drawn from `random`, at most 100 times.
// With `random` null the search stops before drawing a restart and says NeedsRestart; called again later with a
// generator it goes on from there, exactly as if it had not stopped.
RootSearch continueRootSearch(RootSearchState& state, std::span<double> rootsReal, std::span<double> rootsImag,
                              ClassicRand* random);

// The whole search: true when every root was found.
bool polyRoots(std::span<const double> a, int order, std::span<double> rootsReal, std::span<double> rootsImag,
               ClassicRand& random);
