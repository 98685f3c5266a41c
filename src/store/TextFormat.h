// Fills a message or file template in the C library's printf style ("%d", "%s", "%03d"). Only integers and text
// go through here, so the result does not depend on the locale.
#pragma once

#include <string>

#if defined(__GNUC__)
__attribute__((format(printf, 1, 2)))
#endif
std::string
formatText(const char* format, ...);
