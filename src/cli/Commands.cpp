#include "Commands.h"

#include <array>

int runInfo(CommandArgs args);
#if SONALYS_WITH_AUDIO
int runRecord(CommandArgs args);
int runPlay(CommandArgs args);
#endif

std::span<const Command> allCommands() {
    static constexpr std::array kCommands {
        Command{"info", "info FILE.wav            format, length and whether the file opens as-is", runInfo},
#if SONALYS_WITH_AUDIO
            Command{"record", "record OUT.wav --seconds N [--rate 11025|22050|44100]   a take from the sound input",
                    runRecord},
            Command{"play", "play FILE.wav [--from S --to S]   sound a file, or a range of it, on the output", runPlay},
#endif
    };
    return kCommands;
}
