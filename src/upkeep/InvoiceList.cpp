#include "upkeep/InvoiceList.h"

#include <algorithm>

#include "upkeep/OverviewReader.h"
#include "upkeep/RibbonReader.h"
#include "upkeep/Words.h"
#include "values/DateText.h"
#include "values/Format.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using values::Money;

namespace upkeep {

namespace {

const auto InvoicesQuery =
    u"SELECT InvoiceID, OrNo, DateSold, TimeSold, CashierID, CashierName, CashAmount, TaxTotal FROM Invoices WHERE "_s;
const auto LinesOfDaysQuery =
    u"SELECT SalesDetails.InvoiceID, SalesDetails.ProdCode, SalesDetails.TaxID FROM Invoices INNER JOIN SalesDetails"
    u" ON Invoices.InvoiceID = SalesDetails.InvoiceID WHERE "_s;
const auto LinesQuery =
    u"SELECT ProdDescription, QtySold, Unit, UnitPrice, Amount FROM SalesDetails WHERE InvoiceID = '%1'"_s;

constexpr int Width = 40;

Money MoneyOf(const values::Value& value) {
    return value.IsNull() ? Money() : value.ToMoney();
}

bool IsWished(const InvoicesWish& wish, QDate day, QTime time, const QString& cashierID) {
    return (!wish.hour || (time.isValid() && time.hour() == *wish.hour)) &&
           (!wish.weekday || day.dayOfWeek() == *wish.weekday) &&
           (!wish.cashierID || cashierID.compare(*wish.cashierID, Qt::CaseInsensitive) == 0);
}

// The lines that are meant, by the goods and the tax on them.
class WishedLines {
public:
    WishedLines(store::Database& main, const InvoicesWish& wish) : taxID_(wish.taxID) {
        if (wish.goods) goods_.emplace().Meet(*wish.goods);
        if (!wish.taken && !wish.group) return;
        const Articles articles(main);
        if (wish.taken) {
            goods_.emplace().Meet(*wish.taken);
            for (const QString& code : articles.MadeWith(*wish.taken)) goods_->Meet(code);
            return;
        }
        // What is on no tab may also be gone from the table of goods, so it is known by the others.
        areOthers_ = wish.group->isEmpty();
        goods_.emplace();
        const size_t tabs = CountTabs(main);
        for (const Article& article : articles.List()) {
            const size_t tab = TabOf(article, tabs);
            if (areOthers_ ? tab < tabs : QString::number(tab) == *wish.group) goods_->Meet(article.sold.code);
        }
    }

    bool Holds(const QString& code, const QString& taxID) const {
        return (!goods_ || goods_->Contains(code) != areOthers_) &&
               (!taxID_ || taxID.compare(*taxID_, Qt::CaseInsensitive) == 0);
    }

private:
    std::optional<DistinctKeys> goods_;
    bool areOthers_ = false;
    const std::optional<QString> taxID_;
};

DistinctKeys InvoicesWith(store::Database& main, const InvoicesWish& wish) {
    const WishedLines wished(main, wish);
    DistinctKeys invoices;
    store::Listing rows = main.ReadListing(LinesOfDaysQuery + WithinDays(wish.days, u"Invoices.DateSold"_s));
    for (qint64 row = 0, count = rows.WaitFor(0); row < count; ++row)
        if (wished.Holds(rows.At(row, 1).TextOrEmpty(), rows.At(row, 2).TextOrEmpty()))
            invoices.Meet(rows.At(row, 0).TextOrEmpty());
    return invoices;
}

QString Line(const QString& left, const QString& right) {
    const qsizetype room = std::max<qsizetype>(Width - right.size() - 1, 0);
    return left.left(room).leftJustified(Width - right.size()) + right + u'\n';
}

QString Amount(Money amount) {
    return values::Format(amount, u"0.00");
}

}  // namespace

std::vector<ListedInvoice> ReadInvoices(store::Database& main, const InvoicesWish& wish) {
    std::vector<ListedInvoice> invoices;
    std::optional<DistinctKeys> withLines;
    if (wish.goods || wish.taken || wish.group || wish.taxID) withLines = InvoicesWith(main, wish);
    store::Listing rows = main.ReadListing(InvoicesQuery + WithinDays(wish.days));
    for (qint64 row = 0, count = rows.WaitFor(0); row < count; ++row) {
        if (withLines && !withLines->Contains(rows.At(row, 0).TextOrEmpty())) continue;
        const QDate day = rows.At(row, 2).ToDate();
        const values::Value time = rows.At(row, 3);
        const QTime timeSold = time.IsNull() ? QTime() : time.ToTime();
        if (!IsWished(wish, day, timeSold, rows.At(row, 4).TextOrEmpty())) continue;
        invoices.push_back({rows.At(row, 0).TextOrEmpty(),
                            rows.At(row, 1).TextOrEmpty(),
                            day,
                            timeSold,
                            rows.At(row, 5).TextOrEmpty(),
                            {MoneyOf(rows.At(row, 6)), MoneyOf(rows.At(row, 7))}});
    }
    std::ranges::stable_sort(invoices, {}, [](const ListedInvoice& each) { return QDateTime(each.day, each.time); });
    return invoices;
}

QString InvoiceAsText(store::Database& main, const ListedInvoice& invoice) {
    const QString rule = QString(Width, u'-') + u'\n';
    QString text = Words::tr("Invoice %1").arg(invoice.number) + u'\n' +
                   Words::tr("%1  %2").arg(values::DateText(invoice.day), values::TimeText(invoice.time)) + u'\n' +
                   Words::tr("Cashier: %1").arg(invoice.cashier) + u'\n' + rule;
    auto lines = main.OpenSnapshot(LinesQuery.arg(QString(invoice.id).replace(u'\'', u"''"_s)));
    for (auto& line : lines) {
        text += line[0].TextOrEmpty().left(Width) + u'\n';
        const QString pieces = u"  %1 %2 x %3"_s.arg(values::NumberText(MoneyOf(line[1].Get())), line[2].TextOrEmpty(),
                                                     Amount(MoneyOf(line[3].Get())));
        text += Line(pieces, Amount(MoneyOf(line[4].Get())));
    }
    return text + rule + Line(Words::tr("Tax in it"), Amount(invoice.amounts.tax)) +
           Line(Words::tr("TOTAL"), Amount(invoice.amounts.total));
}

QByteArray FindReceipt(QIODevice& ribbon, const ListedInvoice& invoice) {
    constexpr qint64 halfACent = Money::Scale / 200;
    const auto isIt = [&](const Receipt& receipt) {
        return receipt.number == invoice.number && receipt.total && receipt.day.isValid() &&
               std::abs(receipt.day.daysTo(invoice.day)) <= 1 &&
               std::abs((*receipt.total - invoice.amounts.total).Units()) <= halfACent;
    };
    return FindOnRibbon(ribbon, isIt);
}

}  // namespace upkeep
