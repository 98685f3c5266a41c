#include "panels/PanelDefaults.h"

std::vector<int> LimitEntries(int rate) {
    switch (rate) {
    case 11025: return {2756, 3675, 5512};
    case 22050: return {2756, 5512, 7350, 11025};
    case 44100: return {2756, 5512, 7350, 11025, 14700, 22050};
    default: return {};
    }
}

std::optional<int> DefaultLimit(int rate) {
    const std::vector<int> entries = LimitEntries(rate);
    if (entries.size() <= static_cast<std::size_t>(kDefaultLimitEntry)) return std::nullopt;
    return entries[kDefaultLimitEntry];
}
