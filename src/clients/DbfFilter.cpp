#include "DbfFilter.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace {

bool isBlank(char c) noexcept { return c == ' ' || c == '\t'; }
bool isLetter(char c) noexcept { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
bool isDigit(char c) noexcept { return c >= '0' && c <= '9'; }

void skipBlanks(std::string_view& text) noexcept {
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
}

}  // namespace

std::optional<DbfEquality> parseDbfEquality(std::string_view text) {
    skipBlanks(text);
    std::size_t nameLength = 0;
    if (text.empty() || !isLetter(text.front())) return std::nullopt;
    while (nameLength < text.size() &&
           (isLetter(text[nameLength]) || isDigit(text[nameLength]) || text[nameLength] == '_')) {
        ++nameLength;
    }
    DbfEquality equality;
    equality.field = std::string(text.substr(0, nameLength));
    text.remove_prefix(nameLength);
    skipBlanks(text);
    if (text.empty() || text.front() != '=') return std::nullopt;
    text.remove_prefix(1);
    skipBlanks(text);
    // from_chars takes a minus sign but not a plus sign.
    if (!text.empty() && text.front() == '+' && text.size() > 1 && isDigit(text[1])) text.remove_prefix(1);
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), equality.value);
    if (error != std::errc()) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    skipBlanks(text);
    if (!text.empty()) return std::nullopt;
    return equality;
}

std::int32_t dbfFieldToInt(std::string_view text) noexcept {
    std::size_t i = 0;
    while (i < text.size() && text[i] == ' ') ++i;
    bool negative = false;
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) negative = text[i++] == '-';
    std::int64_t value = 0;
    constexpr std::int64_t kLimit = std::int64_t{std::numeric_limits<std::int32_t>::max()} + 1;
    for (; i < text.size() && isDigit(text[i]); ++i) {
        value = std::min<std::int64_t>(value * 10 + (text[i] - '0'), kLimit);
    }
    if (negative) return static_cast<std::int32_t>(-value);
    return static_cast<std::int32_t>(std::min<std::int64_t>(value, kLimit - 1));
}
