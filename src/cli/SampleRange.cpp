#include "SampleRange.h"

#include <algorithm>
#include <ostream>

std::optional<SampleRange> readSampleRange(Args& args, std::size_t count, int rate, std::ostream& errors) {
    SampleRange range;
    const double length = static_cast<double>(count) / rate;
    range.from = args.number("from", 0.0);
    range.to = args.number("to", length);
    if (!args.ok()) return std::nullopt;
    if (!(range.from >= 0.0 && range.from < range.to && range.to <= length)) {
        errors << "the range " << range.from << " s to " << range.to << " s is not within the recording (0 s to "
               << length << " s)\n";
        return std::nullopt;
    }
    range.first = static_cast<std::size_t>(range.from * rate);
    range.end = std::min(count, static_cast<std::size_t>(range.to * rate));
    return range;
}
