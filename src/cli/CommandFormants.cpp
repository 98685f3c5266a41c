// sonalys-analyze formants: the first four formants of a recording, one row per 10 ms frame.
#include <charconv>
#include <iostream>
#include <string>
#include <thread>

#include "Args.h"
#include "WaveInput.h"
#include "analysis/FormantTracker.h"

namespace {

// Messages of the analysis go to the error stream; there is nobody to answer a question, which counts as No.
class ConsolePrompt : public Prompt {
public:
    void showOk(std::string_view text) override { std::cerr << text << "\n"; }
    bool askYesNo(std::string_view text) override {
        std::cerr << text << "\n";
        return false;
    }
};

template <typename T>
void writeNumber(std::string& out, T value) {
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    out.append(buffer, result.ptr);
}

}  // namespace

int runFormants(CommandArgs words) {
    Args args(words, {});
    args.allowOnly({"threads"});
    const unsigned cores = std::thread::hardware_concurrency();
    const long long threads = args.integer("threads", cores == 0 ? 1 : cores);
    if (!args.ok() || args.positional().size() != 1 || threads < 1 || threads > 256) {
        if (!args.ok()) std::cerr << "sonalys-analyze formants: " << args.error() << "\n";
        std::cerr << "usage: sonalys-analyze formants FILE.wav [--threads N]\n";
        return 1;
    }
    const auto input = loadMonoInput(std::string(args.positional()[0]), std::cerr);
    if (!input) return 2;

    ConsolePrompt prompt;
    FormantTracker tracker(prompt);
    tracker.setThreadCount(static_cast<int>(threads));
    FormantTrack track;
    tracker.computeFormants(track, input->samples, static_cast<int>(input->format.nSamplesPerSec));
    if (!track.valid) return 2;

    std::string out = "time_s,f1,f2,f3,f4\n";
    for (const FormantRecord& r : track.records) {
        writeNumber(out, r.start / 10000.0);  // start is a sample at 10 kHz
        for (float f : {r.f1, r.f2, r.f3, r.f4}) {
            out += ',';
            writeNumber(out, f);
        }
        out += '\n';
    }
    std::cout << out;
    return 0;
}
