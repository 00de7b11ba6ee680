#pragma once

#include <QDate>
#include <QIODevice>
#include <optional>
#include <vector>

#include "values/Money.h"

namespace upkeep {

// One receipt of the ribbon of printed invoices, by the lines that every layout prints. Their letters and digits are
// the same in every code page and under every locale.
struct Receipt {
    QString number;
    QDate day;                           // none when the line with it was cut away
    std::optional<values::Money> total;  // none when the receipt was cut short
};

std::vector<Receipt> ReadRibbon(QIODevice& ribbon);

}  // namespace upkeep
