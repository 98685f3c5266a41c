#include "Commands.h"

#include <array>

int runInfo(CommandArgs args);

std::span<const Command> allCommands() {
    static constexpr std::array kCommands{
        Command{"info", "info FILE.wav            format, length and whether the file opens as-is", runInfo},
    };
    return kCommands;
}
