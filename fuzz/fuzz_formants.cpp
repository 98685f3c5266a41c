// Formant tracking on arbitrary samples at an arbitrary rate: the result must be well formed whatever the sound.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "analysis/FormantTracker.h"
#include "base/ByteOrder.h"

namespace {

struct NoPrompt : Prompt {
    void showOk(std::string_view) override {}
    bool askYesNo(std::string_view) override { return false; }
};

// The rates a file can bring, and the first two bytes may also name any rate from 1000 to 66535 Hz.
constexpr int kRates[] = {8000, 10000, 11025, 16000, 22050, 32000, 44100, 48000};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 3) return 0;
    const int choice = data[0] | (data[1] << 8);
    const int rate = choice < 0x8000 ? kRates[choice % 8] : 1000 + (choice - 0x8000) * 2;
    const std::size_t count = (size - 2) / 2;
    std::vector<std::int16_t> samples(count);
    for (std::size_t i = 0; i < count; ++i) samples[i] = static_cast<std::int16_t>(readLE16(data + 2 + 2 * i));

    NoPrompt prompt;
    FormantTracker tracker(prompt);
    tracker.setThreadCount(1 + data[2] % 3);
    FormantTrack track;
    tracker.computeFormants(track, samples, rate);
    if (!track.valid) std::abort();
    for (int i = 0; i < track.count(); ++i) {
        const FormantRecord& r = track.records[static_cast<std::size_t>(i)];
        if (r.start != 100 * i || r.flag != 1) std::abort();
        for (float f : {r.f1, r.f2, r.f3, r.f4})
            if (!std::isfinite(f) || f <= 0.0f) std::abort();
    }
    return 0;
}
