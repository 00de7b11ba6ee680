#pragma once

#include <string>

namespace store::sqlite {

// A parameter by its number, from 1.
inline std::string Parameter(int number) {
    return '?' + std::to_string(number);
}

}  // namespace store::sqlite
