// Fills a message or file template in the C library's printf style ("%d", "%s", "%03d"), and reads numbers back
// out of text the way the program's small text files are read. Only integers and text go through the templates,
// and numbers are read without the C locale, so neither depends on the locale in force.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#if defined(__GNUC__)
__attribute__((format(printf, 1, 2)))
#endif
std::string
formatText(const char* format, ...);

// The number at the start of `text`, read as the C library's atof reads it: leading white space is skipped, a sign
// is taken, and reading stops at the first character that cannot continue the number. Text that does not start
// with a number gives 0. The decimal separator is always the point.
double leadingNumber(std::string_view text) noexcept;

// A number cut toward zero to a whole number, as a cast in C does; values beyond the type's range are held at its
// ends, and a value that is not a number gives 0.
std::int64_t truncateToInt64(double value) noexcept;
std::int32_t truncateToInt32(double value) noexcept;
