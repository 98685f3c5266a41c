// Numbers shown to the user carry a decimal comma, the program's convention for every read-out, whatever the
// language; the C locale is never changed for it.
#pragma once

#include <string>

// `value` with exactly `decimals` digits after a comma: 2.5 with 1 decimal gives "2,5".
std::string DecimalText(double value, int decimals);
