#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <optional>

#include "bench/ShopGoods.h"

namespace bench {

constexpr int TwoYears = 731;  // days

struct ShopSize {
    int products;
    int lines;  // of invoices
    int days = TwoYears;
};

// A program folder whose main store holds years of business, the same in every run: about five lines an invoice, so
// many invoices each day, receipt numbers that begin anew each year. It is made once and found again by its size.
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

    static QDate LastDay() { return {2025, 12, 31}; }
    // The day on which this part (0 to 1) of all lines was sold.
    static QDate DayAt(double part, int days = TwoYears) {
        return LastDay().addDays(1 - days + static_cast<qint64>(part * days));
    }

private:
    void Make(const QString& folder) const;

    ShopSize size_;
    QString folder_;
    std::vector<Goods> products_;
};

// A shop that is made when it is first asked for.
class LateShop {
public:
    LateShop(QString dataFolder, ShopSize size) : dataFolder_(std::move(dataFolder)), size_(size) {}

    const ShopSize& Size() const { return size_; }
    const Shop& Get() const {
        if (!shop_) shop_.emplace(dataFolder_, size_);
        return *shop_;
    }

private:
    QString dataFolder_;
    ShopSize size_;
    mutable std::optional<Shop> shop_;
};

}  // namespace bench
