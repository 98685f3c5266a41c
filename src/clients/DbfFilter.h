// The filters a table can be searched with: an equality of one field with a whole number, as in "CODIGO=12" or
// "CODIGO = 12", with blanks optional around each part. Anything else is refused rather than guessed at.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

struct DbfEquality {
    std::string field;  // the field's name as written in the filter
    std::int32_t value = 0;
};

// The equality written in `text`, or nothing when the text is not exactly NAME = INTEGER.
std::optional<DbfEquality> parseDbfEquality(std::string_view text);

// The number in a numeric field's text, as the dBase library reads it: leading blanks skipped, an optional sign,
// then digits up to the first other character. Text with no digits reads as 0; values beyond 32 bits are held at
// the nearest end of the range.
std::int32_t dbfFieldToInt(std::string_view text) noexcept;
