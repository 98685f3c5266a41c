#include "view/Selection.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "store/Prompt.h"

int ClampToStrip(const ViewLayout& layout, int x) { return std::clamp(x, layout.GraphLeft, layout.graphRight()); }

bool SpansWholeStrip(const ViewLayout& layout, int selStartX, int selEndX) {
    return std::min(selStartX, selEndX) <= layout.GraphLeft && std::max(selStartX, selEndX) >= layout.graphRight();
}

std::optional<SampleRange> SelectionSampleRange(const ViewLayout& layout, std::int64_t sampleCount, bool zoomed,
                                                SampleRange shown, int selStartX, int selEndX, Prompt& prompt) {
    if (zoomed) return shown;
    const float p = static_cast<float>(sampleCount) / static_cast<float>(layout.GraphWidth);
    const int left = std::min(selStartX, selEndX);
    const auto first = static_cast<std::int64_t>(static_cast<float>(left - layout.GraphLeft) * p);
    // An insertion point takes its length from the pixel position itself, not 0: only its first end counts.
    const float widthPixels = selStartX == selEndX ? std::fabs(static_cast<float>(selStartX))
                                                   : static_cast<float>(std::abs(selEndX - selStartX));
    std::int64_t last = first + static_cast<std::int64_t>(widthPixels * p);
    // The float samples-per-pixel can round a whole-strip selection a sample short of the end.
    if (selStartX != selEndX && std::max(selStartX, selEndX) >= layout.graphRight()) last = sampleCount;
    if (first < 0 || last < 0) {
        prompt.showOk(kSelectAnArea);
        return std::nullopt;
    }
    return SampleRange{first, last};
}
