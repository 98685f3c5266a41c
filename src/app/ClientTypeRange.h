// The range in which the F0 curve is looked for, set from the client's type each time the client changes.
#pragma once

#include <optional>
#include <string_view>

#include <QtGlobal>

#include "panels/F0Range.h"

// Work without a client: the voice could be anyone's.
inline constexpr F0Range kOutsideClientF0Range{70, 1000};

inline constexpr std::string_view kUndefinedType = QT_TRANSLATE_NOOP("Sonalys", "Undefined Type!");

// Man (0) 70 to 400 Hz, Woman (1) 120 to 400, Child (2) 200 to 550, Singer (3) 100 to 1000; nothing for any other
// type, which leaves the range as it was after "Undefined Type!".
std::optional<F0Range> ClientTypeRange(int tipo);
