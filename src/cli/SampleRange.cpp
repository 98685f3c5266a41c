#include "SampleRange.h"

#include <algorithm>
#include <ostream>

std::optional<SampleRange> readSampleRange(Args& args, std::size_t count, int rate, std::ostream& errors) {
    SampleRange range;
    const double length = static_cast<double>(count) / rate;
    range.from = args.number("from", 0.0);
    range.to = args.number("to", length);
    if (!args.ok()) return std::nullopt;
    // Each refusal names what is wrong with the range itself, so that the user knows which number to change.
    const auto refuse = [&](const char* why) {
        errors << "the range " << range.from << " s to " << range.to << " s " << why << "\n";
        return std::nullopt;
    };
    if (!(range.from < range.to)) return refuse("is empty: --to must come after --from");
    if (!(range.from >= 0.0 && range.to <= length)) {
        errors << "the range " << range.from << " s to " << range.to << " s is not within the recording (0 s to "
               << length << " s)\n";
        return std::nullopt;
    }
    range.first = static_cast<std::size_t>(range.from * rate);
    range.end = std::min(count, static_cast<std::size_t>(range.to * rate));
    if (range.end <= range.first) return refuse("holds no whole sample");
    return range;
}
