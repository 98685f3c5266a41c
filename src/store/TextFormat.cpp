#include "TextFormat.h"

#include <charconv>
#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <limits>

std::string formatText(const char* format, ...) {
    va_list args;
    va_start(args, format);
    va_list again;
    va_copy(again, args);
    const int length = std::vsnprintf(nullptr, 0, format, args);
    va_end(args);
    std::string text;
    if (length > 0) {
        text.resize(static_cast<std::size_t>(length));
        std::vsnprintf(text.data(), text.size() + 1, format, again);
    }
    va_end(again);
    return text;
}

namespace {

bool isCSpace(char c) noexcept { return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r'; }

template <typename Int>
Int truncateTo(double value) noexcept {
    if (std::isnan(value)) return 0;
    if (value <= static_cast<double>(std::numeric_limits<Int>::min())) return std::numeric_limits<Int>::min();
    // The largest 64-bit value is not exact in a double; anything from 2^63 up is held at the top.
    if (value >= -static_cast<double>(std::numeric_limits<Int>::min())) return std::numeric_limits<Int>::max();
    return static_cast<Int>(value);
}

}  // namespace

double leadingNumber(std::string_view text) noexcept {
    std::size_t at = 0;
    while (at < text.size() && isCSpace(text[at])) ++at;
    bool negative = false;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) negative = text[at++] == '-';
    // A second sign ("--5") is no number at all, as for atof.
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) return 0.0;
    double value = 0.0;
    const char* first = text.data() + at;
    const auto [end, error] = std::from_chars(first, text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range) {
        // from_chars leaves the value alone here; atof gives infinity for too large and 0 for too small, and only
        // a negative exponent makes a number too small.
        const std::string_view digits(first, static_cast<std::size_t>(end - first));
        const std::size_t exponent = digits.find_first_of("eE");
        const bool tiny =
            exponent != std::string_view::npos && exponent + 1 < digits.size() && digits[exponent + 1] == '-';
        value = tiny ? 0.0 : std::numeric_limits<double>::infinity();
    } else if (error != std::errc{}) {
        return 0.0;
    }
    return negative ? -value : value;
}

std::int64_t truncateToInt64(double value) noexcept { return truncateTo<std::int64_t>(value); }
std::int32_t truncateToInt32(double value) noexcept { return truncateTo<std::int32_t>(value); }
