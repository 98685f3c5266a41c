// A selection lives in pixels of the strip, from where the drag started to where it ended; edits and the zoom
// turn it into a range of samples. Only one level of zoom exists, since a selection is only made unzoomed.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include <QtGlobal>

#include "view/ViewLayout.h"

struct Prompt;

inline constexpr std::string_view kSelectAnArea = QT_TRANSLATE_NOOP("Sonalys", "You need to select an area!");

struct SampleRange {
    std::int64_t first = 0;
    std::int64_t last = 0;  // one past the last sample
    friend bool operator==(const SampleRange&, const SampleRange&) = default;
};

// A dragged x held between the strip's ends, GraphLeft and GraphLeft + GraphWidth.
int ClampToStrip(const ViewLayout& layout, int x);
// True when the selection runs from one end of the strip to the other.
bool SpansWholeStrip(const ViewLayout& layout, int selStartX, int selEndX);

// The samples a selection stands for, for edits and the zoom. Zoomed, the shown range. Otherwise, with p =
// SampleCount / GraphWidth as a float, first = (left end - GraphLeft) x p and the length |end - start| x p, both
// truncated; for an insertion point (both ends equal) the length is the start pixel times p, the pixel position
// itself. A selection that reaches the right end of the strip ends with the recording. A negative end shows
// "You need to select an area!" and gives nothing.
std::optional<SampleRange> SelectionSampleRange(const ViewLayout& layout, std::int64_t sampleCount, bool zoomed,
                                                SampleRange shown, int selStartX, int selEndX, Prompt& prompt);
