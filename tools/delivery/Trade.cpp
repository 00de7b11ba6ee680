#include "delivery/Trade.h"

#include <array>
#include <random>
#include <vector>

#include "values/Tax.h"

using namespace Qt::StringLiterals;
using values::Money;

namespace delivery {

namespace {

struct Goods {
    QString code, name, unit, taxID;
    Money price, percent;
};

// Hours of a day by how much is sold in them, from seven in the morning on.
constexpr std::array<int, 14> Rush{3, 6, 8, 7, 5, 7, 4, 3, 3, 5, 8, 9, 5, 2};
// Invoices of a day of the week, Monday first; closed on Sundays.
constexpr std::array<int, 7> Invoices{14, 13, 15, 16, 22, 27, 0};

class Trade {
public:
    explicit Trade(store::Database& main)
        : periods_(main.OpenRecordset(u"SELECT * FROM Sales"_s)),
          invoices_(main.OpenRecordset(u"SELECT * FROM Invoices"_s)),
          lines_(main.OpenRecordset(u"SELECT * FROM SalesDetails"_s)) {
        auto rows = main.OpenSnapshot(
            u"SELECT ProdCode, ProdDescription, Unit, TaxID, UnitPrice, TaxPercent FROM Products ORDER BY ID"_s);
        for (auto& row : rows)
            goods_.push_back(
                {row[0].Text(), row[1].Text(), row[2].Text(), row[3].Text(), row[4].Money(), row[5].Money()});
    }

    void SellOn(QDate day, bool isToday) {
        ++period_;
        Money taken;
        const int count = Invoices.at(static_cast<size_t>(day.dayOfWeek() - 1)) + Draw(5);
        for (int i = 0; i < count; ++i) taken += SellTo(day);
        periods_.AddNew();
        periods_[u"SalesID"] = QString::number(period_);
        periods_[u"Kas"] = 0;
        periods_[u"UserID"] = u"2"_s;
        periods_[u"DateGenerated"] = day;
        periods_[u"TimeGenerated"] = QTime(6, 55);
        periods_[u"TotalSales"] = taken;
        periods_[u"DateStoped"] = day;
        periods_[u"TimeStoped"] = QTime(21, 2);
        periods_[u"Closed"] = !isToday;
        periods_[u"Payed"] = !isToday;
        if (!isToday) periods_[u"Grupni"] = period_;
        periods_.Update();
    }

private:
    int Draw(int below) { return static_cast<int>(random_() % static_cast<quint64>(below)); }

    int Hour() {
        int left = 0;
        for (const int weight : Rush) left += weight;
        left = Draw(left);
        int hour = 0;
        while (left >= Rush.at(static_cast<size_t>(hour))) left -= Rush.at(static_cast<size_t>(hour++));
        return 7 + hour;
    }

    // Some goods are asked for far more often than others.
    const Goods& Wanted() {
        const auto count = static_cast<int>(goods_.size());
        return goods_[static_cast<size_t>(Draw(Draw(Draw(count) + 1) + 1) * 37 % count)];
    }

    Money SellTo(QDate day) {
        ++invoice_;
        Amounts sum;
        for (int left = 1 + Draw(5); left > 0; --left) AddLine(Wanted(), sum);
        const bool isAna = Draw(3) == 0;
        invoices_.AddNew();
        invoices_[u"Kas"] = 0;
        invoices_[u"SalesID"] = QString::number(period_);
        invoices_[u"InvoiceID"] = QString::number(invoice_);
        invoices_[u"OrNo"] = QString::number(invoice_);
        invoices_[u"CashierID"] = isAna ? u"3"_s : u"2"_s;
        invoices_[u"CashierName"] = isAna ? u"Ana Kovač"_s : u"kasir"_s;
        invoices_[u"PaymentType"] = 0;
        invoices_[u"DateSold"] = day;
        invoices_[u"TimeSold"] = QTime(Hour(), Draw(60), Draw(60));
        invoices_[u"CashAmount"] = sum.total;
        invoices_[u"TaxTotal"] = sum.tax;
        invoices_.Update();
        return sum.total;
    }

    struct Amounts {
        Money total, tax;
    };
    void AddLine(const Goods& goods, Amounts& sum) {
        const Money pieces =
            goods.unit == u"kg" ? Money::FromUnits((Draw(28) + 3) * 500) : Money::FromWhole(1 + Draw(3));
        const Money amount = Money::FromUnits((goods.price * pieces).Units() / 100 * 100);
        const Money tax = Money::FromUnits(values::ContainedTax(amount, goods.percent.ToDouble()).Units() / 100 * 100);
        lines_.AddNew();
        lines_[u"Kas"] = 0;
        lines_[u"InvoiceID"] = QString::number(invoice_);
        lines_[u"ProdCode"] = goods.code;
        lines_[u"ProdDescription"] = goods.name;
        lines_[u"UnitPrice"] = goods.price;
        lines_[u"QtySold"] = pieces;
        lines_[u"Amount"] = amount;
        lines_[u"TaxPercent"] = goods.percent;
        lines_[u"TaxAmount"] = tax;
        lines_[u"Unit"] = goods.unit;
        lines_[u"TaxID"] = goods.taxID;
        lines_.Update();
        sum.total += amount;
        sum.tax += tax;
    }

    store::Recordset periods_, invoices_, lines_;
    std::vector<Goods> goods_;
    std::mt19937_64 random_;
    int period_ = 0;
    int invoice_ = 0;
};

}  // namespace

void TradeForWeeks(store::Database& main, QDate until) {
    constexpr int days = 71;
    store::Database::Batch batch(main);
    Trade trade(main);
    for (QDate day = until.addDays(-days); day <= until; day = day.addDays(1))
        if (day.dayOfWeek() != Qt::Sunday) trade.SellOn(day, day == until);
    batch.Commit();
}

}  // namespace delivery
