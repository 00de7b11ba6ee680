#pragma once

// Stands at the head of each file that has faults planted in it. The environment names the one that is on.

#include <cstdlib>

inline bool FAULT(int number) {
    static const char* const named = std::getenv("VELTON_FAULT");
    static const int on = named ? std::atoi(named) : 0;
    return number == on;
}
