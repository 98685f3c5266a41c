#include "app/ClientTypeRange.h"

std::optional<F0Range> ClientTypeRange(int tipo) {
    switch (tipo) {
    case 0: return F0Range{70, 400};
    case 1: return F0Range{120, 400};
    case 2: return F0Range{200, 550};
    case 3: return F0Range{100, 1000};
    default: return std::nullopt;
    }
}
