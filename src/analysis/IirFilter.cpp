#include "analysis/IirFilter.h"

#include <cmath>
#include <complex>
#include <new>
#include <numbers>

#include "base/Assert.h"

namespace {

using Complex = std::complex<double>;

// The poles of the normalised analogue Butterworth low-pass of `order`, all in the left half-plane.
std::vector<Complex> prototypePoles(int order) {
    std::vector<Complex> poles;
    for (int k = 0; k < order; ++k) {
        const double angle = std::numbers::pi * (2 * k + order + 1) / (2 * order);
        poles.push_back(std::polar(1.0, angle));
    }
    return poles;
}

// The analogue poles of the filter, with the edges warped by tan(pi f / rate) so that the bilinear transform
// s = (z - 1) / (z + 1) puts them at the requested frequencies.
std::vector<Complex> analoguePoles(int type, int order, double w1, double w2) {
    std::vector<Complex> poles;
    if (type == kLowPass || type == kHighPass) {
        for (const Complex p : prototypePoles(order)) poles.push_back(type == kLowPass ? w1 * p : w1 / p);
        return poles;
    }
    // Band filters: each pole of a prototype of half the order becomes two.
    const double width = w2 - w1;
    const double centre2 = w1 * w2;
    for (const Complex p : prototypePoles(order / 2)) {
        const Complex b = type == kBandPass ? p * width : width / p;
        const Complex root = std::sqrt(b * b - 4.0 * centre2);
        poles.push_back((b + root) * 0.5);
        poles.push_back((b - root) * 0.5);
    }
    return poles;
}

// Groups the digital poles into sections: each complex pole with its conjugate, the real ones two by two.
std::vector<FilterSection> sectionsFromPoles(const std::vector<Complex>& analogue) {
    std::vector<FilterSection> sections;
    std::vector<double> real;
    for (const Complex s : analogue) {
        const Complex z = (1.0 + s) / (1.0 - s);
        if (std::fabs(z.imag()) <= 1e-12 * std::abs(z)) {
            real.push_back(z.real());
        } else if (z.imag() > 0.0) {
            FilterSection section;
            section.a[1] = -2.0 * z.real();
            section.a[2] = std::norm(z);
            sections.push_back(section);
        }
    }
    for (std::size_t i = 0; i + 1 < real.size(); i += 2) {
        FilterSection section;
        section.a[1] = -(real[i] + real[i + 1]);
        section.a[2] = real[i] * real[i + 1];
        sections.push_back(section);
    }
    return sections;
}

Complex sectionResponse(const FilterSection& s, double omega) {
    const Complex z1 = std::polar(1.0, -omega);
    const Complex z2 = z1 * z1;
    return (s.b[0] + s.b[1] * z1 + s.b[2] * z2) / (s.a[0] + s.a[1] * z1 + s.a[2] * z2);
}

// Sets each section's zeros and scales its numerator for unit gain at `omega` (radians per sample).
void placeZeros(std::vector<FilterSection>& sections, const double (&numerator)[3], double omega) {
    for (FilterSection& s : sections) {
        for (int i = 0; i < 3; ++i) s.b[i] = numerator[i];
        const double gain = std::abs(sectionResponse(s, omega));
        for (double& b : s.b) b /= gain;
    }
}

std::vector<FilterSection> design(int type, int order, double edge1, double edge2, double rate) {
    const double w1 = std::tan(std::numbers::pi * edge1 / rate);
    const double w2 = type == kBandPass || type == kBandStop ? std::tan(std::numbers::pi * edge2 / rate) : w1;
    std::vector<FilterSection> sections = sectionsFromPoles(analoguePoles(type, order, w1, w2));
    // The centre of a band lies where tan(omega / 2) is the geometric mean of the warped edges.
    const double centre = 2.0 * std::atan(std::sqrt(w1 * w2));
    switch (type) {
    case kLowPass: placeZeros(sections, {1.0, 2.0, 1.0}, 0.0); break;
    case kHighPass: placeZeros(sections, {1.0, -2.0, 1.0}, std::numbers::pi); break;
    case kBandPass: placeZeros(sections, {1.0, 0.0, -1.0}, centre); break;
    default: placeZeros(sections, {1.0, -2.0 * std::cos(centre), 1.0}, 0.0); break;
    }
    return sections;
}

}  // namespace

void IirFilter::reset() noexcept {
    for (FilterSection& s : m_sections) s.w1 = s.w2 = 0.0;
}

double IirFilter::gainAt(double frequency, double rate) const {
    const double omega = 2.0 * std::numbers::pi * frequency / rate;
    double gain = 1.0;
    for (const FilterSection& s : m_sections) gain *= std::abs(sectionResponse(s, omega));
    return gain;
}

std::optional<IirFilter> designFilter(int type, int order, double edge1, double edge2, double rate, Prompt& prompt) {
    if (type < kLowPass || type > kBandStop) {
        prompt.showOk(kFilterUnknownType);
        return std::nullopt;
    }
    if (order >= 11) {
        prompt.showOk(kFilterOrderTooLarge);
        return std::nullopt;
    }
    if (order % 2 != 0) {
        prompt.showOk(kFilterOrderNotEven);
        return std::nullopt;
    }
    SONALYS_ASSERT(order >= 0 && rate > 0.0 && 0.0 < edge1 && edge1 < rate / 2);
    SONALYS_ASSERT((type != kBandPass && type != kBandStop) || (edge1 < edge2 && edge2 < rate / 2));
    try {
        return IirFilter(design(type, order, edge1, edge2, rate));
    } catch (const std::bad_alloc&) {
        prompt.showOk(kFilterOutOfMemory);
        return std::nullopt;
    }
}
