#pragma once

#include <QString>
#include <string>

namespace store {

// A name as every engine's SQL takes it, whatever it holds.
std::string Quoted(const QString& name);

// Appends a piece to a list that is divided by commas.
void AppendTo(std::string& list, const std::string& piece);

}  // namespace store
