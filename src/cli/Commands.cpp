#include "Commands.h"

#include <array>

int runInfo(CommandArgs args);
int runClients(CommandArgs args);
int runDemoTable(CommandArgs args);

std::span<const Command> allCommands() {
    static constexpr std::array kCommands{
        Command{"info", "info FILE.wav            format, length and whether the file opens as-is", runInfo},
        Command{"clients", "clients DATA_ROOT [--filter \"CODIGO=n\"]  the client table as the program reads it",
                runClients},
        Command{"demo-table", "demo-table DATA_ROOT    writes the demo data root's client table (never overwrites)",
                runDemoTable},
    };
    return kCommands;
}
