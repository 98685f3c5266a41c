// The subcommands of sonalys-analyze. Each takes the words after its name and returns the exit status:
// 0 done, 1 wrong usage, 2 the input was refused.
#pragma once

#include <span>
#include <string_view>

using CommandArgs = std::span<const std::string_view>;

struct Command {
    std::string_view name;
    std::string_view usage;  // one line, shown by --help
    int (*run)(CommandArgs args);
};

std::span<const Command> allCommands();
