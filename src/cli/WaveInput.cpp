#include "WaveInput.h"

#include "store/WaveFile.h"

std::string describeWaveResult(int code) {
    switch (code) {
    case kWaveOk: return "read";
    case kWaveNoMemory: return "not enough memory to read the file (code 0xE000)";
    case kWaveCannotOpen: return "the file could not be opened (code 0xE100)";
    case kWaveNotWave: return "not a RIFF WAVE file, or its format chunk is too short (code 0xE101)";
    case kWaveFormatUnreadable: return "the format chunk could not be read (code 0xE102)";
    case kWaveDataTruncated: return "the data chunk claims more bytes than the file holds (code 0xE103)";
    case kWaveChunkNotFound: return "no format or data chunk was found (code 265)";
    default: return "the file could not be read (code " + std::to_string(code) + ")";
    }
}
