#include "audio/WaveDevice.h"

#include <QtGlobal>

#include "store/Prompt.h"
#include "store/TextFormat.h"

namespace {

// The sentence for `code`, "%d" standing for a code the sound system does not name.
const char* waveErrorTemplate(int code) {
    switch (code) {
    case MMSYSERR_NOERROR: return QT_TRANSLATE_NOOP("Sonalys", "The sound device reported no error.");
    case MMSYSERR_ERROR: return QT_TRANSLATE_NOOP("Sonalys", "The sound device reported an error.");
    case MMSYSERR_BADDEVICEID: return QT_TRANSLATE_NOOP("Sonalys", "No sound device is available.");
    case MMSYSERR_ALLOCATED: return QT_TRANSLATE_NOOP("Sonalys", "The sound device is already in use.");
    case MMSYSERR_INVALHANDLE: return QT_TRANSLATE_NOOP("Sonalys", "The sound device is not open.");
    case MMSYSERR_NODRIVER: return QT_TRANSLATE_NOOP("Sonalys", "The sound system cannot be reached.");
    case MMSYSERR_NOMEM: return QT_TRANSLATE_NOOP("Sonalys", "There is not enough memory for the sound device.");
    case MMSYSERR_INVALPARAM: return QT_TRANSLATE_NOOP("Sonalys", "A sound buffer was handed over without data.");
    case MMSYSERR_HANDLEBUSY: return QT_TRANSLATE_NOOP("Sonalys", "The sound device is busy.");
    case WAVERR_BADFORMAT: return QT_TRANSLATE_NOOP("Sonalys", "The sound device does not accept this sound format.");
    case WAVERR_STILLPLAYING: return QT_TRANSLATE_NOOP("Sonalys", "The sound device still holds sound buffers.");
    case WAVERR_UNPREPARED: return QT_TRANSLATE_NOOP("Sonalys", "A sound buffer was not prepared.");
    case WAVERR_DEVICELOST: return QT_TRANSLATE_NOOP("Sonalys", "The sound device stopped working.");
    default: return QT_TRANSLATE_NOOP("Sonalys", "The sound device reported error %d.");
    }
}

}  // namespace

std::string waveErrorText(int code) { return formatText(waveErrorTemplate(code), code); }

std::string waveErrorText(int code, const Prompt& prompt) {
    return formatText(prompt.inLanguage(waveErrorTemplate(code)).c_str(), code);
}
