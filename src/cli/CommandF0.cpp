// sonalys-analyze f0: the F0 curve of a recording, as the program computes it (10-second chunks, 90 frames a
// second, 60 to 1400 Hz unless told otherwise), one CSV row per frame, or a summary of its voiced frames.
#include <algorithm>
#include <charconv>
#include <climits>
#include <cmath>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

#include "Args.h"
#include "WaveInput.h"
#include "f0/f0.h"

namespace {

constexpr std::string_view kUsage =
    "usage: sonalys-analyze f0 FILE.wav [--min-f0 HZ] [--max-f0 HZ] [--frame-rate N] [--threads N] [--stats]\n";
constexpr int kLowestRate = 4000;  // below it the tracker has no decimation filter

std::string fixed(double value, int decimals) {
    char text[64];
    const auto result = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, decimals);
    return std::string(text, result.ptr);
}

// The shortest text that reads back as the same float.
std::string exact(float value) {
    char text[64];
    const auto result = std::to_chars(text, text + sizeof text, value);
    return std::string(text, result.ptr);
}

// One row per value: a frame's time is the start of its chunk plus its index in the chunk times the frame step.
void printCurve(const F0Curve& curve, int nSamples, int rate, int frameRate, int frameStep) {
    std::string out = "time_s,f0_hz\n";
    std::size_t at = 0;
    for (const F0Chunk& chunk : f0CurveChunks(nSamples, rate)) {
        const int count = std::max(0, f0TrackLength(chunk.length, rate, frameRate));
        for (int i = 0; i < count && at < curve.values.size(); ++i, ++at) {
            const double seconds = (static_cast<double>(chunk.start) + static_cast<double>(i) * frameStep) / rate;
            out += fixed(seconds, 6) + "," + exact(curve.values[at]) + "\n";
        }
    }
    std::cout << out;
}

struct Summary {
    double mean = 0, median = 0, sd = 0, min = 0, max = 0;
};

Summary summarise(std::vector<double> values) {
    Summary s;
    std::sort(values.begin(), values.end());
    const std::size_t n = values.size();
    for (double v : values) s.mean += v;
    s.mean /= static_cast<double>(n);
    s.median = n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
    double squares = 0.0;
    for (double v : values) squares += (v - s.mean) * (v - s.mean);
    s.sd = n > 1 ? std::sqrt(squares / static_cast<double>(n - 1)) : 0.0;  // the sample standard deviation
    s.min = values.front();
    s.max = values.back();
    return s;
}

// Mean, median, standard deviation, minimum and maximum of the voiced frames in Hz and in semitones re 100 Hz,
// each taken over that scale's values, and the share of voiced frames.
void printStats(const F0Curve& curve) {
    std::vector<double> hz, semitones;
    for (float v : curve.values) {
        if (v <= 0.0f) continue;
        hz.push_back(v);
        semitones.push_back(12.0 * std::log2(v / 100.0));
    }
    std::string out = "statistic,hz,semitones_re_100hz\n";
    const char* names[] = {"mean", "median", "sd", "min", "max"};
    if (hz.empty()) {
        for (const char* name : names) out += std::string(name) + ",,\n";
    } else {
        const Summary h = summarise(hz);
        const Summary s = summarise(semitones);
        const double hzValues[] = {h.mean, h.median, h.sd, h.min, h.max};
        const double stValues[] = {s.mean, s.median, s.sd, s.min, s.max};
        for (int i = 0; i < 5; ++i)
            out += std::string(names[i]) + "," + fixed(hzValues[i], 3) + "," + fixed(stValues[i], 3) + "\n";
    }
    const double fraction = curve.values.empty() ? 0.0 : static_cast<double>(hz.size()) / curve.values.size();
    out += "voiced_fraction," + fixed(fraction, 4) + ",\n";
    std::cout << out;
}

bool asInt(long long value, int& out) {
    if (value < INT_MIN || value > INT_MAX) return false;
    out = static_cast<int>(value);
    return true;
}

}  // namespace

int runF0(CommandArgs words) {
    Args args(words, {"stats"});
    args.allowOnly({"min-f0", "max-f0", "frame-rate", "threads", "stats"});
    F0CurveSettings settings;
    const long long threads = args.integer("threads", 0);
    const bool numbersFit = asInt(args.integer("min-f0", settings.minF0), settings.minF0) &&
                            asInt(args.integer("max-f0", settings.maxF0), settings.maxF0) &&
                            asInt(args.integer("frame-rate", settings.frameRate), settings.frameRate);
    if (!args.ok() || args.positional().size() != 1 || !numbersFit) {
        std::cerr << (args.ok() ? "" : "sonalys-analyze f0: " + args.error() + "\n") << kUsage;
        return 1;
    }
    if (args.has("threads") && (threads < 1 || threads > 256)) {
        std::cerr << "sonalys-analyze f0: --threads takes a number from 1 to 256\n" << kUsage;
        return 1;
    }
    if (settings.frameRate < 1) {
        std::cerr << "sonalys-analyze f0: --frame-rate takes a number of frames a second above 0\n" << kUsage;
        return 1;
    }
    settings.threads = static_cast<int>(threads);

    const std::string path(args.positional()[0]);
    std::optional<MonoInput> input = loadMonoInput(path, std::cerr);
    if (!input) return 2;
    const std::uint32_t rate = input->format.nSamplesPerSec;
    if (rate < kLowestRate || rate > INT_MAX / 10) {
        std::cerr << path << ": F0 is tracked at sample rates from " << kLowestRate << " Hz (this file has " << rate
                  << " Hz)\n";
        return 2;
    }
    if (input->samples.size() > static_cast<std::size_t>(INT_MAX)) {
        std::cerr << path << ": the recording is too long to analyse at once\n";
        return 2;
    }
    // The settings are tried on one tracker first, which prints the tracker's own reasons if they cannot be used.
    const std::unique_ptr<F0Obj> probe =
        f0CreateTracker(static_cast<int>(rate), settings.minF0, settings.maxF0, settings.frameRate);
    if (!probe) {
        std::cerr << "sonalys-analyze f0: the tracker cannot run with --min-f0 " << settings.minF0 << " --max-f0 "
                  << settings.maxF0 << " --frame-rate " << settings.frameRate << " at " << rate << " Hz\n";
        return 1;
    }

    const int nSamples = static_cast<int>(input->samples.size());
    F0Curve curve;
    computeF0Curve(curve, input->samples.data(), nSamples, static_cast<int>(rate), settings);
    if (!curve.valid) {
        std::cerr << path << ": not enough memory to track F0\n";
        return 2;
    }
    if (args.has("stats"))
        printStats(curve);
    else
        printCurve(curve, nSamples, static_cast<int>(rate), settings.frameRate, probe->frameStep);
    return 0;
}
