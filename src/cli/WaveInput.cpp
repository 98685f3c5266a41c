#include "WaveInput.h"

#include <ostream>

#include "store/StereoFold.h"

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

std::optional<MonoInput> loadMonoInput(const std::string& path, std::ostream& errors) {
    WaveLoadResult loaded = WaveLoad(path);
    if (loaded.code != kWaveOk) {
        errors << path << ": " << describeWaveResult(loaded.code) << "\n";
        return std::nullopt;
    }
    if (loaded.format.wBitsPerSample != 16) {
        errors << path << ": the file must be 16-bit (it is " << loaded.format.wBitsPerSample << "-bit)\n";
        return std::nullopt;
    }
    if (loaded.format.nChannels != 1 && loaded.format.nChannels != 2) {
        errors << path << ": only mono and stereo files can be analysed (it has " << loaded.format.nChannels
               << " channels)\n";
        return std::nullopt;
    }
    MonoInput input;
    input.format = loaded.format;
    if (loaded.format.nChannels == 2) {
        input.samples = foldToMono(loaded.samples, StereoChoice::Mix);
        foldFormatToMono(input.format);
        input.wasStereo = true;
    } else {
        input.samples = std::move(loaded.samples);
    }
    return input;
}
