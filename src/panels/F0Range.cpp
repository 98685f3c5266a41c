#include "panels/F0Range.h"

std::optional<std::string_view> F0RangeProblem(const F0Range& range) {
    if (range.minimum < kLowestF0Minimum) return kF0MinimumTooLow;
    if (range.maximum > kHighestF0Maximum) return kF0MaximumTooHigh;
    if (range.minimum >= range.maximum) return kF0MinimumNotBelowMaximum;
    return std::nullopt;
}
