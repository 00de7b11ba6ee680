#pragma once

#include <QDate>
#include <QIODevice>
#include <functional>
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
// The last receipt that is meant, with its head and its foot; receipts are parted by two empty lines. Nothing when none
// is meant.
QByteArray FindOnRibbon(QIODevice& ribbon, const std::function<bool(const Receipt&)>& isMeant);

}  // namespace upkeep
