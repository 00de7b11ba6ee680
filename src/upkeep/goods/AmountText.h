#pragma once

#include <QChar>
#include <QStringView>
#include <optional>
#include <variant>

#include "values/Money.h"

// Amounts as people write them in tables: with currency signs, thousands separators, percents.
namespace upkeep {

// Which of comma and point divides the decimals in a column of amounts, told by those that could be nothing else: null
// where none says so.
class DecimalVotes {
public:
    void Count(QStringView text);
    QChar Winner() const;

private:
    int commas_ = 0;
    int points_ = 0;
};

// Why a text is no amount.
enum class AmountFault {
    NotANumber,
    UnclearSeparator,  // 1.234 where nothing says which sign divides the decimals
    OtherSeparator,    // 1.5 where the comma divides them
    TooManyDecimals,   // more than the four that are stored
    TooLarge,
};

// The amount, exactly. `decimal` is the sign that divides the decimals; null where that is not known. Currency signs
// and a percent sign around it, and blanks and apostrophes between thousands, are let by.
std::variant<values::Money, AmountFault> ReadAmount(QStringView text, QChar decimal);

// Whether a text is a number that a spreadsheet shortened, "3,85E+12".
bool IsShortened(QStringView text);

}  // namespace upkeep
