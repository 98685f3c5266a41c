#include "Commands.h"

#include <array>

int runInfo(CommandArgs args);
int runF0(CommandArgs args);

std::span<const Command> allCommands() {
    static constexpr std::array kCommands{
        Command{"info", "info FILE.wav            format, length and whether the file opens as-is", runInfo},
        Command{"f0", "f0 FILE.wav [OPTIONS]    F0 curve as time_s,f0_hz (--stats: its summary)", runF0},
    };
    return kCommands;
}
