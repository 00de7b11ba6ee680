#pragma once

#include <QString>
#include <vector>

namespace bench {

// A product as the till sells it. Amounts are ten-thousandths.
struct Goods {
    QString code;  // 13 digits, the last one checks the others
    QString name;
    QString unit;
    qint64 price;
    bool taxed;  // with 17 %, tax included in the price

    QString TaxID() const { return taxed ? QStringLiteral("P") : QStringLiteral("N"); }
    qint64 TaxPercent() const { return taxed ? 170'000 : 0; }
    qint64 TaxIn(qint64 amount) const { return taxed ? amount * 17 / 117 : 0; }
};

std::vector<Goods> MakeGoods(int count);

}  // namespace bench
