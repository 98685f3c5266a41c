#include "app/ScreenCheck.h"

ScreenVerdict JudgeScreen(const ScreenInfo& screen) {
    if (screen.bitsPerPixel < 8 || screen.width < 800 || screen.height < 600)
        return ScreenVerdict::NeedsOtherResolution;
    // The layouts are made for 800 x 600 and for 1024 wide and more; a width in between only works at 600 high.
    if (screen.width >= 1024 || screen.width == 800 || screen.height == 600) return ScreenVerdict::Fits;
    return ScreenVerdict::BetweenTheLayouts;
}

std::optional<ScreenSize> FixedSizeOfScreenMode(int screenMode) {
    switch (screenMode) {
    case 0: return ScreenSize{800, 600};
    case 1: return ScreenSize{1024, 768};
    case 2: return ScreenSize{1280, 800};
    case 3: return ScreenSize{1280, 1024};
    default: return std::nullopt;
    }
}

QRect RestoredWindowGeometry(const QRect& available) {
    const ScreenSize small = *FixedSizeOfScreenMode(0);
    const QSize size =
        (available.size() * 3 / 4).expandedTo(QSize(small.width, small.height)).boundedTo(available.size());
    return QRect(
        available.topLeft() + QPoint((available.width() - size.width()) / 2, (available.height() - size.height()) / 2),
        size);
}
