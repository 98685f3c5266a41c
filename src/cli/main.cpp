// sonalys-analyze: the analysis core of Sonalys for batch work, one subcommand per product, CSV on standard output.
#include <iostream>
#include <string_view>
#include <vector>

#include "Commands.h"

namespace {

void printUsage(std::ostream& out) {
    out << "usage: sonalys-analyze COMMAND [ARGUMENTS]\n\ncommands:\n";
    for (const Command& command : allCommands()) out << "  " << command.usage << "\n";
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string_view> words(argv + 1, argv + argc);
    if (words.empty() || words[0] == "--help" || words[0] == "-h") {
        printUsage(words.empty() ? std::cerr : std::cout);
        return words.empty() ? 1 : 0;
    }
    for (const Command& command : allCommands()) {
        if (command.name == words[0]) return command.run(CommandArgs(words).subspan(1));
    }
    std::cerr << "sonalys-analyze: unknown command \"" << words[0] << "\"\n";
    printUsage(std::cerr);
    return 1;
}
