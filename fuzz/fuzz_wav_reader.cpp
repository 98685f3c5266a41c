// Arbitrary bytes as a WAV file: the reader must refuse or read them without reading past the end or taking memory
// the file does not justify, and whatever it reads must survive the path of a file opened from outside a client
// folder and a write and read back unchanged.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "FuzzScratchFile.h"
#include "base/Assert.h"
#include "store/OpenOtherFile.h"
#include "store/Prompt.h"
#include "store/WaveFile.h"

namespace {

struct SilentPrompt : Prompt {
    void showOk(std::string_view) override {}
    bool askYesNo(std::string_view) override { return true; }
};

void checkRoundTrip(const WaveLoadResult& loaded, const std::filesystem::path& copy) {
    SilentPrompt prompt;
    WaveWriter writer;
    writer.format = loaded.format;
    const auto bytes = static_cast<std::uint32_t>(loaded.samples.size() * 2);
    SONALYS_ASSERT(writer.WaveWrite(copy, bytes, loaded.samples.data(), prompt) == 1);
    const WaveLoadResult again = WaveLoad(copy);
    SONALYS_ASSERT(again.code == kWaveOk && again.samples == loaded.samples);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const FuzzScratchFile scratch("input.wav");
    static const FuzzScratchFile copy("copy.wav");
    scratch.write(data, size);
    const std::filesystem::path& input = scratch.path();

    const WaveLoadResult loaded = WaveLoad(input);
    if (loaded.code != kWaveOk) {
        SONALYS_ASSERT(loaded.samples.empty());
        return 0;
    }
    SONALYS_ASSERT(loaded.samples.size() * 2 <= size);
    checkRoundTrip(loaded, copy.path());

    SilentPrompt prompt;
    LoadedRecording recording;
    const OtherFileOpening opening = OpenOtherFile(
        recording, input, [] { return StereoChoice::Mix; }, prompt);
    if (opening.result == OtherFileResult::Opened) {
        const std::size_t expected = loaded.format.nChannels == 2 ? loaded.samples.size() / 2 : loaded.samples.size();
        SONALYS_ASSERT(recording.SampleCount() == expected);
    }
    return 0;
}
