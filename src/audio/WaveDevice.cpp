#include "audio/WaveDevice.h"

#include "store/TextFormat.h"

std::string waveErrorText(int code) {
    switch (code) {
    case MMSYSERR_NOERROR: return "The sound device reported no error.";
    case MMSYSERR_ERROR: return "The sound device reported an error.";
    case MMSYSERR_BADDEVICEID: return "No sound device is available.";
    case MMSYSERR_ALLOCATED: return "The sound device is already in use.";
    case MMSYSERR_INVALHANDLE: return "The sound device is not open.";
    case MMSYSERR_NODRIVER: return "The sound system cannot be reached.";
    case MMSYSERR_NOMEM: return "There is not enough memory for the sound device.";
    case MMSYSERR_INVALPARAM: return "A sound buffer was handed over without data.";
    case MMSYSERR_HANDLEBUSY: return "The sound device is busy.";
    case WAVERR_BADFORMAT: return "The sound device does not accept this sound format.";
    case WAVERR_STILLPLAYING: return "The sound device still holds sound buffers.";
    case WAVERR_UNPREPARED: return "A sound buffer was not prepared.";
    case WAVERR_DEVICELOST: return "The sound device stopped working.";
    default: return formatText("The sound device reported error %d.", code);
    }
}
