// Numbers in CSV output: the shortest text that reads back to the same value, with a decimal point whatever the
// locale says.
#pragma once

#include <charconv>
#include <string>

template <typename T>
void writeNumber(std::string& out, T value) {
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    out.append(buffer, result.ptr);
}
