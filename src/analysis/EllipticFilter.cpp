#include "EllipticFilter.h"

#include <cmath>
#include <numbers>

namespace {

// How many terms the theta-function series of the design take. With the nome below 0.2 for every selectivity a
// stage can ask for, the sixth term is far below double precision.
constexpr int kSeriesTerms = 6;

// Passband ripple and stopband attenuation of the one filter that is designed for a stage; a filter run two or
// three times in cascade gets half or a third of the figures, so that the cascade meets them as a whole.
struct DesignFigures {
    double rippleDb;
    double attenuationDb;
    int cascade;
};

bool figuresForFactor(int factor, DesignFigures& figures) {
    if (factor >= 2 && factor <= 19) {
        figures = {kPassbandRippleDb, kStopbandAttenuationDb, 1};
    } else if (factor >= 20 && factor <= 29) {
        figures = {kPassbandRippleDb / 2.0, kStopbandAttenuationDb / 2.0, 2};
    } else if (factor >= 30 && factor <= 41) {
        figures = {kPassbandRippleDb / 3.0, kStopbandAttenuationDb / 3.0, 3};
    } else {
        return false;
    }
    return true;
}

// The nome of the elliptic functions for selectivity k, from the first four terms of its power series.
double nome(double k) {
    const double kPrime = std::sqrt(1.0 - k * k);
    const double root = std::sqrt(kPrime);
    const double q0 = 0.5 * (1.0 - root) / (1.0 + root);
    return q0 + 2.0 * std::pow(q0, 5) + 15.0 * std::pow(q0, 9) + 150.0 * std::pow(q0, 13);
}

// Ratio of theta series shared by the pole and zero formulas: 2 q^(1/4) sum (-1)^m q^(m(m+1)) odd(2m+1) over
// 1 + 2 sum (-1)^m q^(m^2) even(2m), where odd and even are sin and cos, or sinh and cosh.
template <typename Odd, typename Even>
double thetaRatio(double q, Odd odd, Even even) {
    double numerator = 0.0;
    double denominator = 1.0;
    for (int m = 0; m < kSeriesTerms; ++m) {
        const double sign = (m % 2 == 0) ? 1.0 : -1.0;
        numerator += sign * std::pow(q, m * (m + 1)) * odd(2 * m + 1);
        if (m > 0) denominator += 2.0 * sign * std::pow(q, m * m) * even(2 * m);
    }
    return 2.0 * std::pow(q, 0.25) * numerator / denominator;
}

// One analogue section (s^2 + a0) / (s^2 + b1 s + b0) of the prototype whose band edges are sqrt(k) and 1/sqrt(k).
struct AnalogueSection {
    double a0, b0, b1;
};

std::vector<AnalogueSection> ellipticPrototype(double k, int order, double rippleDb) {
    const double q = nome(k);
    const double ripple = std::pow(10.0, 0.05 * rippleDb);
    const double lambda = std::log((ripple + 1.0) / (ripple - 1.0)) / (2.0 * order);
    const double sigma0 = std::fabs(thetaRatio(
        q, [&](int j) { return std::sinh(j * lambda); }, [&](int j) { return std::cosh(j * lambda); }));
    const double w = std::sqrt((1.0 + k * sigma0 * sigma0) * (1.0 + sigma0 * sigma0 / k));

    std::vector<AnalogueSection> sections;
    for (int i = 1; i <= order / 2; ++i) {
        const double mu = i - 0.5;  // even orders: the zeros sit at half-integer positions
        const double angle = std::numbers::pi * mu / order;
        const double omega = thetaRatio(
            q, [&](int j) { return std::sin(j * angle); }, [&](int j) { return std::cos(j * angle); });
        const double v = std::sqrt((1.0 - k * omega * omega) * (1.0 - omega * omega / k));
        const double spread = 1.0 + sigma0 * sigma0 * omega * omega;
        sections.push_back({1.0 / (omega * omega),
                            ((sigma0 * v) * (sigma0 * v) + (omega * w) * (omega * w)) / (spread * spread),
                            2.0 * sigma0 * v / spread});
    }
    return sections;
}

// Maps an analogue section to the z-plane by the bilinear transform, the prototype's frequency 1 standing at the
// pre-warped frequency `centre`, and scales its numerator so that the section passes DC unchanged.
BiquadSection bilinear(const AnalogueSection& s, double centre) {
    const double c2 = centre * centre;
    const double d0 = 1.0 + s.b1 * centre + s.b0 * c2;
    const double d1 = -2.0 + 2.0 * s.b0 * c2;
    const double d2 = 1.0 - s.b1 * centre + s.b0 * c2;
    const double n0 = 1.0 + s.a0 * c2;
    const double n1 = -2.0 + 2.0 * s.a0 * c2;
    BiquadSection section;
    section.a1 = d1 / d0;
    section.a2 = d2 / d0;
    const double dcScale = (1.0 + section.a1 + section.a2) / ((n0 + n1 + n0) / d0);
    section.b0 = n0 / d0 * dcScale;
    section.b1 = n1 / d0 * dcScale;
    section.b2 = section.b0;
    return section;
}

}  // namespace

int stageFilterFactor(double w) { return static_cast<int>(0.5 / w + 1e-06); }

int ellipticOrder(double k, double rippleDb, double attenuationDb) {
    const double q = nome(k);
    const double d = (std::pow(10.0, 0.1 * attenuationDb) - 1.0) / (std::pow(10.0, 0.1 * rippleDb) - 1.0);
    // An order n reaches the attenuation when 16 D q^n <= 1.
    int order = 2;
    while (16.0 * d * std::pow(q, order) > 1.0) order += 2;
    return order;
}

StageLowPass designStageLowPass(double w, int passes) {
    StageLowPass design;
    DesignFigures figures{};
    if (!(w > 0.0 && w < 0.5) || !figuresForFactor(stageFilterFactor(w), figures)) return design;
    figures.rippleDb /= passes;

    const double stopEdge = std::tan(std::numbers::pi * w);
    const double passEdge = std::tan(std::numbers::pi * kPassbandEdgeFraction * w);
    const double k = passEdge / stopEdge;
    design.order = ellipticOrder(k, figures.rippleDb, figures.attenuationDb);
    design.cascade = figures.cascade;

    std::vector<BiquadSection> once;
    for (const AnalogueSection& s : ellipticPrototype(k, design.order, figures.rippleDb)) {
        once.push_back(bilinear(s, std::sqrt(passEdge * stopEdge)));
    }
    for (const BiquadSection& section : once) {
        if (sectionRisksLimitCycles(section)) {
            design.result = FilterDesignResult::LimitCycles;
            return design;
        }
    }
    for (int i = 0; i < design.cascade; ++i) design.sections.insert(design.sections.end(), once.begin(), once.end());
    design.result = FilterDesignResult::Ok;
    return design;
}

bool sectionRisksLimitCycles(const BiquadSection& section) {
    // The section's lattice (reflection) coefficients; both near 1 in size means poles hugging the unit circle.
    const double k2 = -section.a2;
    const double k1 = -(section.a1 / (1.0 - k2));
    return (1.0 - k1 * k1) * (1.0 - k2 * k2) < kSectionStabilityLimit;
}
