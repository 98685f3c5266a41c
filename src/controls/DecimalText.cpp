#include "controls/DecimalText.h"

#include <charconv>

std::string DecimalText(double value, int decimals) {
    char buffer[64];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
    std::string text(buffer, result.ptr);
    for (char& c : text) {
        if (c == '.') c = ',';
    }
    return text;
}
