#include "upkeep/SalesBook.h"

#include "upkeep/RowCount.h"

using namespace Qt::StringLiterals;
using values::Money;

namespace upkeep {

namespace {

Money MoneyOrNothing(const store::Field& field) {
    return field.IsNull() ? Money() : field.Money();
}

QDate DayOrNone(const store::Field& field) {
    const values::Value value = field.Get();
    return value.IsNull() ? QDate() : value.ToDate();
}

// A list with one entry a key.
template <typename Entry>
class ByKey {
public:
    explicit ByKey(std::vector<Entry>& entries) : entries_(entries) {}

    Place Find(const QString& key) const { return places_.Find(key); }
    Entry& FindOrAdd(const QString& key) {
        const Place place = places_.FindOrAdd(key);
        if (place == entries_.size()) entries_.emplace_back().id = key;
        return entries_[place];
    }

private:
    std::vector<Entry>& entries_;
    KeyPlaces places_;
};

class Reader {
public:
    Reader(store::Database& main, SalesBook& book) : main_(main), book_(book) {}

    void Read() {
        ReadPeriods();
        ReadInvoices();
        ReadLines();
    }

private:
    void ReadPeriods() {
        auto rows = main_.OpenSnapshot(u"SELECT SalesID, Closed, Grupni, DateStoped, TotalSales FROM Sales"_s);
        for (auto& row : rows) {
            Period& period = periods_.FindOrAdd(row[0].TextOrEmpty());
            ++period.rows;
            period.isClosed = !row[1].IsNull() && row[1].YesNo();
            period.endReport = row[2].IsNull() ? 0 : row[2].Whole();
            period.day = DayOrNone(row[3]);
            period.takings += MoneyOrNothing(row[4]);
        }
    }

    void ReadInvoices() {
        auto rows = main_.OpenSnapshot(
            u"SELECT InvoiceID, SalesID, OrNo, CashierID, DateSold, CashAmount, TaxTotal FROM Invoices"_s);
        for (auto& row : rows) {
            const Amounts amounts{MoneyOrNothing(row[5]), MoneyOrNothing(row[6])};
            const Place period = PeriodOf(row[1].TextOrEmpty(), amounts);
            book_.rows.push_back({row[2].TextOrEmpty(), DayOrNone(row[4]), amounts, period});
            book_.cashiers.Meet(row[3].TextOrEmpty());
            AddToInvoice(row[0].TextOrEmpty(), amounts, period);
        }
    }

    Place PeriodOf(const QString& id, const Amounts& amounts) {
        const Place place = periods_.Find(id);
        if (place == Nowhere)
            book_.unknownPeriods.Meet(id);
        else
            book_.periods[place].sold += amounts.total;
        return place;
    }

    void AddToInvoice(const QString& id, const Amounts& amounts, Place period) {
        Invoice& invoice = invoices_.FindOrAdd(id);
        if (invoice.rows == 0) invoice.period = period;
        ++invoice.rows;
        invoice.head += amounts;
    }

    void ReadLines() {
        auto rows = main_.OpenSnapshot(u"SELECT InvoiceID, ProdCode, TaxID, Amount, TaxAmount FROM SalesDetails"_s);
        for (auto& row : rows) {
            book_.products.Meet(row[1].TextOrEmpty());
            book_.taxes.Meet(row[2].TextOrEmpty());
            AddLine(row[0].TextOrEmpty(), {MoneyOrNothing(row[3]), MoneyOrNothing(row[4])});
        }
    }

    void AddLine(const QString& id, const Amounts& amounts) {
        const Place place = invoices_.Find(id);
        if (place == Nowhere) return book_.unknownInvoices.Meet(id);
        ++book_.invoices[place].lines;
        book_.invoices[place].sumOfLines += amounts;
    }

    store::Database& main_;
    SalesBook& book_;
    ByKey<Period> periods_{book_.periods};
    ByKey<Invoice> invoices_{book_.invoices};
};

}  // namespace

Amounts& Amounts::operator+=(const Amounts& other) {
    total += other.total;
    tax += other.tax;
    return *this;
}

SalesBook ReadSalesBook(store::Database& main) {
    constexpr int tries = 3;
    SalesBook book;
    for (int i = 0; i < tries; ++i) {
        book = {};
        Reader(main, book).Read();
        if (CountRows(main, u"Invoices"_s) == static_cast<qint64>(book.rows.size())) break;
    }
    return book;
}

}  // namespace upkeep
