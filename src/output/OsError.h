#pragma once

#include <QString>

namespace output {

// Throws the OutputError that an errno value stands for; `words` is a sentence of a name and what the system says,
// "Cannot open %1: %2.".
[[noreturn]] void ThrowOsError(const QString& words, const QString& name, int errnoValue);

}  // namespace output
