#include "Commands.h"

#include <array>

int runInfo(CommandArgs args);
int runClients(CommandArgs args);
int runDemoTable(CommandArgs args);
int runConvert(CommandArgs args);
int runFormants(CommandArgs args);
int runSpectrum(CommandArgs args);
int runSpectrogram(CommandArgs args);
int runF0(CommandArgs args);
#if SONALYS_WITH_AUDIO
int runRecord(CommandArgs args);
int runPlay(CommandArgs args);
#endif

std::span<const Command> allCommands() {
    static constexpr std::array kCommands {
        Command{"info", "info FILE.wav            format, length and whether the file opens as-is", runInfo},
            Command{"clients", "clients DATA_ROOT [--filter \"CODIGO=n\"]  the client table as the program reads it",
                    runClients},
            Command{"demo-table", "demo-table DATA_ROOT    writes the demo data root's client table (never overwrites)",
                    runDemoTable},
            Command{"convert", "convert IN.wav OUT.wav --rate 11025|22050|44100  as 16-bit mono at that rate",
                    runConvert},
            Command{"formants", "formants FILE.wav [--threads N]   F1 to F4 every 10 ms", runFormants},
            Command{"spectrum",
                    "spectrum FILE.wav [--fft 256|512|1024] [--from S] [--to S] [--no-window]   power spectrum",
                    runSpectrum},
            Command{"spectrogram",
                    "spectrogram FILE.wav --out PICTURE.png [--width 671] [--height 300] [--band HZ] [--limit HZ] "
                    "[--range 70] [--scheme 0|1|2] [--from S] [--to S]",
                    runSpectrogram},
            Command{"f0", "f0 FILE.wav [OPTIONS]    F0 curve as time_s,f0_hz (--stats: its summary)", runF0},
#if SONALYS_WITH_AUDIO
            Command{"record", "record OUT.wav --seconds N [--rate 11025|22050|44100]   a take from the sound input",
                    runRecord},
            Command{"play", "play FILE.wav [--from S --to S]   sound a file, or a range of it, on the output", runPlay},
#endif
    };
    return kCommands;
}
