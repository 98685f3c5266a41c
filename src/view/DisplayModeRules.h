// How the display mode moves when the user opens, closes, records or changes page, and the tests the rest of the
// program makes on it. The mode changes in the view alone; these rules are its single home.
#pragma once

#include <string_view>

#include <QColor>
#include <QtGlobal>

#include "view/DisplayMode.h"

struct Prompt;

inline constexpr std::string_view kInvalidFunction = QT_TRANSLATE_NOOP("Sonalys", "Invalid Function!");

// The live modes (nothing loaded: ready to record, or recording) are below 9.
constexpr bool isLiveMode(DisplayMode mode) { return static_cast<int>(mode) < 9; }
// A loaded recording or the empty view: above 8.
constexpr bool isFileOrEmptyMode(DisplayMode mode) { return static_cast<int>(mode) > 8; }
// Something on screen besides the logo.
constexpr bool showsPicture(DisplayMode mode) { return mode != DisplayMode::ModeEmpty; }
// The spectrogram page, live or from a file; the other two live and file modes are the power-spectrum page.
constexpr bool isSpectrogramPage(DisplayMode mode) {
    return mode == DisplayMode::LiveSpectrogramMode || mode == DisplayMode::FileSpectrogramMode;
}
// One of the five values the program knows; anything else is a fault.
constexpr bool isKnownMode(DisplayMode mode) {
    switch (mode) {
    case DisplayMode::LiveSpectrogramMode:
    case DisplayMode::LiveSpectrumMode:
    case DisplayMode::FileSpectrogramMode:
    case DisplayMode::FileSpectrumMode:
    case DisplayMode::ModeEmpty: return true;
    }
    return false;
}

// Opening a recording, by any path: the power-spectrum page stays on its page, anything else shows the spectrogram.
DisplayMode ModeAfterOpening(DisplayMode before);
// The Power Spectrum command: the file page with samples, else the live page.
DisplayMode ModeAfterShowSpectrum(bool hasSamples);
// The Spectrogram command: nothing changes on the spectrogram page; elsewhere the file page with samples, else the
// live page.
DisplayMode ModeAfterShowSpectrogram(DisplayMode before, bool hasSamples);
// Starting to record from `current`, where `beforeClose` is the mode held before the recording on screen was
// closed: the live page of the page in use.
DisplayMode ModeAfterStartRecording(DisplayMode current, DisplayMode beforeClose);
// Stopping with the take kept: the live page becomes the file page of the same kind.
DisplayMode ModeAfterStopRecording(DisplayMode current);

// The colour of the trace, black in every mode. A mode outside the five is a fault that is shown.
QColor TraceColour(DisplayMode mode, Prompt& prompt);
