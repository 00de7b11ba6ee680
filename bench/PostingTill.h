#pragma once

#include <QDate>
#include <QTime>

#include "bench/Shop.h"
#include "store/Recordset.h"

namespace bench {

// Invoices to post, the same for every contestant. Each register has a period of its own and numbers of its own, far
// above those of the shop.
class Invoices {
public:
    Invoices(const std::vector<Goods>& products, int lines, int reg = 0)
        : products_(products), lines_(lines), number_(FirstNumber * (reg + 1)), period_(reg + 1) {}

    QDate Day() const { return {2026, 1, 2}; }
    QTime Time() const { return {12, 0}; }
    QString Period() const { return QString::number(period_); }
    QString Number() const { return QString::number(number_); }
    int Lines() const { return lines_; }
    // The invoice, for each line the stock and the line itself, the period.
    int Commits() const { return 1 + 2 * lines_ + 1; }
    void Next() { ++number_; }
    const Goods& Line(int line) const {
        return products_[(static_cast<size_t>(number_) * static_cast<size_t>(lines_) + static_cast<size_t>(line)) *
                         7919 % products_.size()];
    }
    qint64 Total() const {
        qint64 total = 0;
        for (int i = 0; i < lines_; ++i) total += Line(i).price;
        return total;
    }

private:
    static constexpr int FirstNumber = 10'000'000;
    const std::vector<Goods>& products_;
    int lines_;
    int number_;
    int period_;
};

// The till's cursors, open as long as the sales screen is.
class PostingTill {
public:
    // The program in this folder; a process has one at a time.
    PostingTill(const QString& folder, const QString& period);
    ~PostingTill();
    PostingTill(const PostingTill&) = delete;
    PostingTill& operator=(const PostingTill&) = delete;

    void Post(const Invoices& invoice);

private:
    void AddInvoice(const Invoices& invoice);
    void AddLine(const Invoices& invoice, const Goods& goods);

    store::Recordset invoices_, lines_, period_;
};

}  // namespace bench
