#pragma once

#include <QString>

namespace upkeep {

// What a kind of note (Findings.h) means in the words of a shop, and what to do about it.
struct Advice {
    QString meaning;  // empty: the kind says it itself
    QString advice;
};
Advice AdviceOn(const QString& kind);

}  // namespace upkeep
