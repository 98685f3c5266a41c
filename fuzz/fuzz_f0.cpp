// Random samples and parameters through the F0 tracker: parameter texts into a tracker of its own, the buffer
// layer with random F0 settings, and the whole-recording and live layers. Parameters are kept to what the
// tracker's callers could hand it (numbers, in the documented ranges where one is documented), so that only
// genuine faults stop the run, not the tracker's asserted preconditions.
#include <fuzzer/FuzzedDataProvider.h>

#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

#include "f0/f0.h"

namespace {

int pickRate(FuzzedDataProvider& in) {
    static const int kRates[] = {4000, 5512, 8000, 11025, 16000, 22050, 44100, 48000};
    return in.ConsumeBool() ? in.PickValueInArray(kRates) : in.ConsumeIntegralInRange(4000, 96000);
}

std::vector<float> samplesFrom(FuzzedDataProvider& in, int rate) {
    const std::size_t most = static_cast<std::size_t>(rate) * 3;
    std::vector<float> samples;
    while (in.remaining_bytes() >= 2 && samples.size() < most) samples.push_back(in.ConsumeIntegral<std::int16_t>());
    // Short inputs are stretched by repetition so that some reach several buffers.
    const std::size_t given = samples.size();
    const std::size_t wanted =
        given ? std::min(most, given * (1 + static_cast<std::size_t>(std::abs(samples.front())) % 64u)) : 0;
    for (std::size_t i = given; i < wanted; ++i) samples.push_back(samples[i % given]);
    return samples;
}

// Inside the documented ranges, and finite where no range is documented.
bool withinRanges(const F0Obj& t) {
    for (float value : t.pars)
        if (!std::isfinite(value)) return false;
    return t.pars[kCandThresh] >= 0.01f && t.pars[kCandThresh] <= 0.99f && t.pars[kWindDur] >= 0.0001f &&
           t.pars[kWindDur] <= 0.1f && t.pars[kNCands] >= 3 && t.pars[kNCands] <= 100;
}

void fuzzParameterTexts(FuzzedDataProvider& in) {
    std::unique_ptr<F0Obj> tracker = f0Create();
    const int rate = pickRate(in);
    for (int n = in.ConsumeIntegralInRange(0, 6); n > 0; --n) {
        std::string text;
        if (in.ConsumeBool()) {
            text = std::string(f0ParamDefaults[in.ConsumeIntegralInRange(0, f0NumParams - 1)].name) + "=";
        }
        text += in.ConsumeRandomLengthString(24);
        f0SetParam(tracker.get(), text.c_str());
    }
    int buffSize = 0;
    int buffStep = 0;
    if (!withinRanges(*tracker) || !f0Init(tracker.get(), rate, &buffSize, &buffStep)) return;
    if (!f0WindowsFit(*tracker) || tracker->lastLag > 4000) return;
    const std::vector<float> samples = samplesFrom(in, rate);
    const int n = static_cast<int>(samples.size());
    int at = 0;
    for (; at + buffSize <= n; at += buffStep)
        if (!f0Process(tracker.get(), samples.data() + at, buffSize)) return;
    if (n - at > 0) f0Process(tracker.get(), samples.data() + at, n - at);
    for (int i = 0; i < f0NumOutput(tracker.get()); ++i) (void)f0GetOutput(tracker.get(), i);
}

void fuzzTrackBuffer(FuzzedDataProvider& in) {
    const int rate = pickRate(in);
    const int minF0 = in.ConsumeIntegralInRange(-10, 2000);
    const int maxF0 = in.ConsumeIntegralInRange(-10, 30000);
    const int frameRate = in.ConsumeIntegralInRange(1, 2000);
    const std::vector<float> samples = samplesFrom(in, rate);
    std::vector<float> out;
    int nOut = 0;
    f0TrackBuffer(samples.data(), static_cast<int>(samples.size()), rate, minF0, maxF0, frameRate, out, nOut);
}

void fuzzWholeRecording(FuzzedDataProvider& in) {
    const int rate = in.ConsumeIntegralInRange(1, 50000);
    const std::vector<float> floats = samplesFrom(in, std::max(rate, 4000));
    const std::vector<short> samples(floats.begin(), floats.end());
    F0Curve curve;
    computeF0Curve(curve, samples.data(), static_cast<int>(samples.size()), rate, {60, 1400, 90, 1});
    liveF0Value(samples.data(), static_cast<int>(samples.size()), rate);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider in(data, size);
    switch (in.ConsumeIntegralInRange(0, 2)) {
    case 0: fuzzParameterTexts(in); break;
    case 1: fuzzTrackBuffer(in); break;
    default: fuzzWholeRecording(in); break;
    }
    return 0;
}
