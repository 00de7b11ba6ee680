// The tax report by day over a period in which three of ten lines were sold, read to its end.

#include "bench/TaxReport.h"

#include "bench/Figures.h"
#include "bench/RawStore.h"
#include "store/Database.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

const auto Query =
    u"SELECT Tax.TaxID, Tax.Name, Tax.Percent, Invoices.DateSold, Sum(SalesDetails.Taxamount) AS Porez, "
    "Sum(SalesDetails.Amount) AS IznosSaPorezom, [IznosSaPorezom]-[Porez] AS IznosBezPoreza FROM Invoices INNER JOIN "
    "(SalesDetails INNER JOIN Tax ON SalesDetails.TaxID = Tax.TaxID) ON Invoices.InvoiceID = SalesDetails.InvoiceID  "
    "WHERE Invoices.DateSold >= #%1# AND Invoices.DateSold <= #%2# GROUP BY Invoices.DateSold, Tax.TaxID, Tax.Name, "
    "Tax.Percent"_s;
constexpr auto HandQuery =
    "SELECT t.TaxID, t.Name, t.Percent, i.DateSold, sum(d.TaxAmount), sum(d.Amount), sum(d.Amount) - sum(d.TaxAmount) "
    "FROM Invoices i JOIN SalesDetails d ON d.InvoiceID = i.InvoiceID JOIN Tax t ON t.TaxID = d.TaxID "
    "WHERE i.DateSold BETWEEN ?1 AND ?2 GROUP BY i.DateSold, t.TaxID, t.Name, t.Percent";

const QDate From = Shop::DayAt(0.4);
const QDate To = Shop::DayAt(0.7);

Work ByHand(const Shop& shop) {
    const auto raw = std::make_shared<RawStore>(shop.StorePath());
    const auto statement = std::make_shared<RawStatement>(raw->Prepare(HandQuery));
    return [raw, statement] {
        qint64 digest = 0;
        statement->Bind(1, From.toJulianDay());
        statement->Bind(2, To.toJulianDay());
        while (statement->Step()) {
            digest += statement->Text(0)[0].unicode() + statement->Text(1)[0].unicode();
            for (int column = 2; column < 7; ++column) digest += statement->Integer(column);
        }
        statement->Reset();
        return digest;
    };
}

}  // namespace

Work ReadTaxReport(const store::Place& place, QDate from, QDate to) {
    std::shared_ptr<store::Database> main = store::Database::Open(place, store::MainSchema());
    return [main, from, to] {
        qint64 digest = 0;
        auto rows = main->OpenRecordset(Query.arg(from.toString(u"MM-dd-yyyy"), to.toString(u"MM-dd-yyyy")));
        for (auto& row : rows) {
            digest += row[u"TaxID"].Text()[0].unicode() + row[u"Name"].Text()[0].unicode();
            digest += row[u"Percent"].Money().Units() + row[u"DateSold"].Get().ToDate().toJulianDay();
            for (const QStringView sum : {u"Porez", u"IznosSaPorezom", u"IznosBezPoreza"})
                digest += row[sum].Money().Units();
        }
        return digest;
    };
}

Figure TaxReportFigure(const Shop& shop) {
    return {.name = "tax report by day, 3 of 10 lines",
            .ours = [&shop] { return ReadTaxReport(shop.StorePath(), From, To); },
            .yardsticks = {{"the query by hand in raw SQLite", [&shop] { return ByHand(shop); }, 1.2}}};
}

}  // namespace bench
