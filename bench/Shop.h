#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

#include "bench/ShopGoods.h"

namespace bench {

struct ShopSize {
    int products;
    int lines;  // of invoices
};

// A program folder whose main store holds two years of business, the same in every run: about five lines an invoice,
// so many invoices each day. It is made once and found again by its size.
class Shop {
public:
    Shop(const QString& dataFolder, ShopSize size);

    const QString& Folder() const { return folder_; }
    QString StorePath() const;
    const ShopSize& Size() const { return size_; }
    const std::vector<Goods>& Products() const { return products_; }
    // Codes of its products in no order, each as likely as any other.
    std::vector<QString> RandomCodes(int count) const;

    // A fresh copy that can be written to; whatever lay there before is gone.
    void CopyTo(const QString& folder) const;

    static QDate FirstDay() { return {2024, 1, 1}; }
    static QDate LastDay() { return {2025, 12, 31}; }
    // The day on which this part (0 to 1) of all lines was sold.
    static QDate DayAt(double part);

private:
    void Make(const QString& folder) const;

    ShopSize size_;
    QString folder_;
    std::vector<Goods> products_;
};

}  // namespace bench
