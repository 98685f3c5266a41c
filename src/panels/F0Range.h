// The range of the F0 curve's own scale, in Hz: the dots outside it are not drawn, and the axis beside the
// spectrogram is labelled from its minimum to its maximum. It follows the client's type and the dialog
// "F0 Setting...".
#pragma once

#include <optional>
#include <string_view>

#include <QtGlobal>

struct F0Range {
    int minimum = 70;   // Hz
    int maximum = 400;  // Hz
    bool operator==(const F0Range&) const = default;
};

// The range when the program starts, before any client.
inline constexpr F0Range kStartF0Range{70, 400};

// What may be typed in the lists of the dialog: the scale never starts below 50 Hz nor ends above 1200 Hz, and its
// minimum stays below its maximum, so that the scale never divides by zero.
inline constexpr int kLowestF0Minimum = 50;
inline constexpr int kHighestF0Maximum = 1200;
inline constexpr std::string_view kF0MinimumTooLow = QT_TRANSLATE_NOOP("Sonalys", "Min. Value: 50 Hz");
inline constexpr std::string_view kF0MaximumTooHigh = QT_TRANSLATE_NOOP("Sonalys", "Max. Value: 1200 Hz");
inline constexpr std::string_view kF0MinimumNotBelowMaximum = QT_TRANSLATE_NOOP("Sonalys", "Min. Value >= Max. Value");

// The message that refuses `range`, checked in this order: minimum, maximum, then the two together; nothing when
// the range may be used.
std::optional<std::string_view> F0RangeProblem(const F0Range& range);
