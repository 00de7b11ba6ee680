#pragma once

#include <QStringList>
#include <optional>

#include "values/Money.h"

namespace upkeep {

enum class DecimalSign { Point, Comma };

// By what stands in cells that should be numbers: in "1.234,50" the last sign is the decimal one, in "12,5" the only
// one that is not followed by just three digits. Empty when nothing tells.
std::optional<DecimalSign> GuessDecimalSign(const QStringList& cells);

// What a cell says, whatever currency stands beside it.
struct ReadAmount {
    values::Money amount = {};
    QString fault = {};  // why it says none, in words
};
// With four decimals at most. Two signs that don't fit the decimal one are a fault, and no guess.
ReadAmount AmountOf(const QString& cell, DecimalSign sign);

}  // namespace upkeep
