// sonalys-analyze formants: the first four formants of a recording, one row per 10 ms frame.
#include <charconv>
#include <iostream>
#include <string>
#include <thread>

#include "Args.h"
#include "CsvNumber.h"
#include "StreamPrompt.h"
#include "WaveInput.h"
#include "analysis/FormantTracker.h"

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

    StreamPrompt prompt(std::cerr);
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
