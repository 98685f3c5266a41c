#include "view/DisplayModeRules.h"

#include "store/Prompt.h"

DisplayMode ModeAfterOpening(DisplayMode before) {
    if (before == DisplayMode::LiveSpectrumMode || before == DisplayMode::FileSpectrumMode)
        return DisplayMode::FileSpectrumMode;
    return DisplayMode::FileSpectrogramMode;
}

DisplayMode ModeAfterShowSpectrum(bool hasSamples) {
    return hasSamples ? DisplayMode::FileSpectrumMode : DisplayMode::LiveSpectrumMode;
}

DisplayMode ModeAfterShowSpectrogram(DisplayMode before, bool hasSamples) {
    if (isSpectrogramPage(before)) return before;
    return hasSamples ? DisplayMode::FileSpectrogramMode : DisplayMode::LiveSpectrogramMode;
}

DisplayMode ModeAfterStartRecording(DisplayMode current, DisplayMode beforeClose) {
    switch (current) {
    case DisplayMode::FileSpectrogramMode: return DisplayMode::LiveSpectrogramMode;
    case DisplayMode::FileSpectrumMode:
    case DisplayMode::LiveSpectrumMode: return DisplayMode::LiveSpectrumMode;
    default: return beforeClose;
    }
}

DisplayMode ModeAfterStopRecording(DisplayMode current) {
    if (current == DisplayMode::LiveSpectrogramMode) return DisplayMode::FileSpectrogramMode;
    if (current == DisplayMode::LiveSpectrumMode) return DisplayMode::FileSpectrumMode;
    return current;
}

QColor TraceColour(DisplayMode mode, Prompt& prompt) {
    if (!isKnownMode(mode)) prompt.showOk(kInvalidFunction);
    return Qt::black;
}
