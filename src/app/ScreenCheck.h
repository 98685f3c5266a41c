// Whether the screen is large enough for the program's layouts, and what conf.dat wishes for the window size.
#pragma once

#include <optional>
#include <string_view>

#include <QRect>
#include <QtGlobal>

struct ScreenInfo {
    int bitsPerPixel = 0;  // colour depth
    int width = 0;         // pixels
    int height = 0;
};

enum class ScreenVerdict {
    Fits,                  // start-up goes on with this size
    NeedsOtherResolution,  // too small or too few colours: the "Attention!" box, then quit
    BetweenTheLayouts,     // a width of 801 to 1023 with a height other than 600: ask for a supported size, then quit
};

ScreenVerdict JudgeScreen(const ScreenInfo& screen);

struct ScreenSize {
    int width = 0;
    int height = 0;
};

// ScreenMode 0 to 3 names a fixed size (800 x 600, 1024 x 768, 1280 x 800, 1280 x 1024); any other value means
// "take the screen as it is". We never change the display's mode: a fixed size is a wish for the main window.
std::optional<ScreenSize> FixedSizeOfScreenMode(int screenMode);

// Where the main window stands when it leaves the maximised state: three quarters of the room the desktop gives,
// never less than the small layout's 800 x 600 unless that room itself is smaller, in the middle of the room.
QRect RestoredWindowGeometry(const QRect& available);

inline constexpr std::string_view kResolutionBetweenLayouts = QT_TRANSLATE_NOOP(
    "Sonalys",
    "The screen resolution is higher than the options available!\nPlease select the option 800 x 600, 1024 x 768 "
    "ou 1280 x 800 in the next screen!");
inline constexpr std::string_view kVideoProgramFailed =
    QT_TRANSLATE_NOOP("Sonalys", "Error Loading Video Setting Program!");
inline constexpr std::string_view kCannotSetResolution =
    QT_TRANSLATE_NOOP("Sonalys", "It´s not possible to set the resolution!");
