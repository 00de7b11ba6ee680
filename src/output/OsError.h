#pragma once

#include <QString>

namespace output {

// Throws the OutputError that an errno value stands for; `action` begins the sentence: "Cannot open x".
[[noreturn]] void ThrowOsError(const QString& action, int errnoValue);

}  // namespace output
