#include "Commands.h"

#include <array>

int runInfo(CommandArgs args);
int runClients(CommandArgs args);
int runDemoTable(CommandArgs args);
int runConvert(CommandArgs args);

std::span<const Command> allCommands() {
    static constexpr std::array kCommands{
        Command{"info", "info FILE.wav            format, length and whether the file opens as-is", runInfo},
        Command{"clients", "clients DATA_ROOT [--filter \"CODIGO=n\"]  the client table as the program reads it",
                runClients},
        Command{"demo-table", "demo-table DATA_ROOT    writes the demo data root's client table (never overwrites)",
                runDemoTable},
        Command{"convert", "convert IN.wav OUT.wav --rate 11025|22050|44100  as 16-bit mono at that rate", runConvert},
    };
    return kCommands;
}
