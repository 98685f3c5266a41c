// Preconditions that stay checked in every build: a broken one ends the program with a message naming the
// expression, the source file and the line, whatever NDEBUG says.
#pragma once

#include <cstdio>
#include <cstdlib>

[[noreturn]] inline void sonalysAssertFailed(const char* expression, const char* file, int line) noexcept {
    std::fprintf(stderr, "Assertion failed: %s, file %s, line %d\n", expression, file, line);
    std::fflush(stderr);
    std::abort();
}

#define SONALYS_ASSERT(expression) \
    ((expression) ? static_cast<void>(0) : sonalysAssertFailed(#expression, __FILE__, __LINE__))
