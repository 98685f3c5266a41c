// Runs a program through the shell and collects what it prints, for tests that check our files against real tools.
#pragma once

#include <sys/wait.h>

#include <cstdio>
#include <filesystem>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

struct CommandResult {
    int exitCode = -1;
    std::string output;  // standard output only
};

inline CommandResult runCommand(const std::string& command) {
    CommandResult result;
    std::FILE* pipe = ::popen(command.c_str(), "r");
    if (pipe == nullptr) return result;
    char buffer[4096];
    for (std::size_t n; (n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;) result.output.append(buffer, n);
    const int status = ::pclose(pipe);
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}

inline std::vector<std::string> splitLines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

inline bool toolAvailable(std::string_view tool) {
    return runCommand("command -v " + std::string(tool) + " >/dev/null 2>&1").exitCode == 0;
}

inline std::string quoted(const std::filesystem::path& path) {
    std::string out = "'";
    for (char c : path.string()) out += (c == '\'') ? std::string("'\\''") : std::string(1, c);
    return out + "'";
}
