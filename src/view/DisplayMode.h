// What the main view shows, and so which commands work. The numbers are the program's own: below 9 is live
// (nothing loaded, ready to record or recording), above 8 a file or nothing, and 16 is the empty view.
#pragma once

enum class DisplayMode {
    LiveSpectrogramMode = 1,
    LiveSpectrumMode = 2,
    FileSpectrogramMode = 9,
    FileSpectrumMode = 10,
    ModeEmpty = 16,
};
