#pragma once

#include <QString>
#include <string>

namespace store::sqlite {

// A name as the engine takes it, whatever it holds.
std::string Quoted(const QString& name);
// A parameter by its number, from 1.
std::string Parameter(int number);

}  // namespace store::sqlite
