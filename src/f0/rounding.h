// The F0 tracker's one rounding rule and its one truncation, used wherever its sizes, lags and low-rate samples
// become whole numbers.
#pragma once

#include <climits>

// Toward zero. Values beyond the int range, which only nonsense parameters reach, saturate (NaN gives 0) instead
// of being undefined; inside the range this is the plain conversion.
inline int f0Trunc(double x) {
    if (!(x == x)) return 0;
    if (x >= static_cast<double>(INT_MAX)) return INT_MAX;
    if (x <= static_cast<double>(INT_MIN)) return INT_MIN;
    return static_cast<int>(x);
}

// Half away from zero: 0.5 is added to a value that is not negative and taken from a negative one, in double,
// and the result truncated toward zero.
inline int f0Round(double x) { return x >= 0 ? f0Trunc(x + 0.5) : f0Trunc(x - 0.5); }
