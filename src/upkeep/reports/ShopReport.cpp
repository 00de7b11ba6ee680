#include "upkeep/reports/ShopReport.h"

#include <limits>

#include "upkeep/Words.h"

using namespace Qt::StringLiterals;
using values::Value;

namespace upkeep {

namespace {

using Cell = ShopReport::Cell;

const auto CashiersQuery =
    u"SELECT DateSold, Invoices.CashierID, Users.UserName, Count(*) AS N, Sum(CashAmount) AS Amount"
    u" FROM Invoices LEFT JOIN Users ON Invoices.CashierID = Users.UserID"
    u" WHERE DateSold BETWEEN #%1# AND #%2# GROUP BY DateSold, Invoices.CashierID, Users.UserName"_s;
const auto ProductsQuery =
    u"SELECT SalesDetails.ProdCode, SalesDetails.ProdDescription, SalesDetails.Unit,"
    u" Sum(SalesDetails.QtySold) AS Qty, Sum(SalesDetails.Amount) AS Amount"
    u" FROM Invoices INNER JOIN SalesDetails ON Invoices.InvoiceID = SalesDetails.InvoiceID"
    u" WHERE Invoices.DateSold BETWEEN #%1# AND #%2#"
    u" GROUP BY SalesDetails.ProdCode, SalesDetails.ProdDescription, SalesDetails.Unit"_s;
const auto TaxesQuery =
    u"SELECT Invoices.DateSold, Tax.TaxID, Tax.Name, Tax.Percent, Sum(SalesDetails.Amount)-Sum(SalesDetails.Taxamount)"
    u" AS Base, Sum(SalesDetails.Taxamount) AS Tax, Sum(SalesDetails.Amount) AS Amount"
    u" FROM Invoices INNER JOIN (SalesDetails INNER JOIN Tax ON SalesDetails.TaxID = Tax.TaxID)"
    u" ON Invoices.InvoiceID = SalesDetails.InvoiceID WHERE Invoices.DateSold BETWEEN #%1# AND #%2#"
    u" GROUP BY Invoices.DateSold, Tax.TaxID, Tax.Name, Tax.Percent"_s;
const auto TaxBookQuery =
    u"SELECT DateSold, Min(Val([OrNo])) AS FirstNo, Max(Val([OrNo])) AS LastNo, Sum(CashAmount)-Sum(TaxTotal) AS Base,"
    u" Sum(TaxTotal) AS Tax, Sum(CashAmount) AS Amount"
    u" FROM Invoices WHERE DateSold BETWEEN #%1# AND #%2# GROUP BY DateSold"_s;
const auto InvoicesQuery =
    u"SELECT OrNo, DateSold, TimeSold, CashierName, CashAmount-TaxTotal AS Base, TaxTotal, CashAmount"
    u" FROM Invoices WHERE DateSold BETWEEN #%1# AND #%2# ORDER BY Val(OrNo)"_s;
const auto PeriodsQuery =
    u"SELECT Grupni, Kas, DateGenerated, TimeGenerated, DateStoped, TimeStoped, TotalSales"
    u" FROM Sales WHERE DateStoped BETWEEN #%1# AND #%2# AND Closed = True"_s;
const auto HoursQuery = u"SELECT Kas, Date, LoginTime, DateOut, LogOut FROM Login WHERE Date BETWEEN #%1# AND #%2#"_s;
const auto StockQuery =
    u"SELECT ProdCode, ProdDescription, Unit, Qty, Unitprice, [Unitprice]*[qty] AS Worth FROM Products"_s;

QString Literal(QDate day) {
    return day.toString(u"MM-dd-yyyy");
}

}  // namespace

std::vector<ShopReport> ShopReports() {
    const auto column = [](const QString& heading, Cell cell = Cell::Text) {
        return ShopReport::Column{heading, cell};
    };
    const auto day = column(Words::tr("Day"), Cell::Day);
    const auto base = column(Words::tr("Without tax"), Cell::Amount);
    const auto tax = column(Words::tr("Tax"), Cell::Amount);
    const auto amount = column(Words::tr("Amount"), Cell::Amount);
    const auto code = column(Words::tr("Code")), name = column(Words::tr("Name")), unit = column(Words::tr("Unit"));
    const auto quantity = column(Words::tr("Quantity"), Cell::Number);
    const auto cashier = column(Words::tr("Cashier")), drawer = column(Words::tr("Register"));
    return {
        {u"sales-by-cashier"_s,
         Words::tr("Sales by cashier"),
         true,
         {day, column(Words::tr("Number")), cashier, column(Words::tr("Invoices"), Cell::Number), amount},
         CashiersQuery},
        {u"sales-by-product"_s,
         Words::tr("Sales by product"),
         true,
         {code, name, unit, quantity, amount},
         ProductsQuery},
        {u"taxes"_s,
         Words::tr("Taxes"),
         true,
         {day, code, name, column(Words::tr("Percent"), Cell::Number), base, tax, amount},
         TaxesQuery},
        {u"tax-book"_s,
         Words::tr("Tax book by day"),
         true,
         {day, column(Words::tr("First invoice"), Cell::Number), column(Words::tr("Last invoice"), Cell::Number), base,
          tax, amount},
         TaxBookQuery},
        {u"invoice-list"_s,
         Words::tr("Invoices"),
         true,
         {column(Words::tr("Number")), day, column(Words::tr("Time")), cashier, base, tax, amount},
         InvoicesQuery},
        {u"end-reports"_s,
         Words::tr("End Reports"),
         true,
         {column(Words::tr("Number"), Cell::Number), drawer, column(Words::tr("From"), Cell::Day),
          column(Words::tr("Time")), column(Words::tr("To"), Cell::Day), column(Words::tr("Time")), amount},
         PeriodsQuery},
        {u"hours"_s,
         Words::tr("Business hours"),
         true,
         {drawer, column(Words::tr("From"), Cell::Day), column(Words::tr("Time")), column(Words::tr("To"), Cell::Day),
          column(Words::tr("Time"))},
         HoursQuery},
        {u"stock"_s,
         Words::tr("Goods in stock"),
         false,
         {code, name, unit, quantity, column(Words::tr("Price"), Cell::Price),
          column(Words::tr("Worth"), Cell::Amount)},
         StockQuery},
    };
}

std::optional<ShopReport> FindReport(const QString& name) {
    for (ShopReport& report : ShopReports())
        if (report.name.compare(name, Qt::CaseInsensitive) == 0) return std::move(report);
    return {};
}

Sheet ReadReport(store::Database& main, const ShopReport& report, QDate from, QDate to) {
    Sheet sheet{.name = report.title, .columns = {}, .rows = {}};
    for (const ShopReport::Column& column : report.columns)
        sheet.columns.push_back({column.heading, column.cell == Cell::Amount || column.cell == Cell::Price});
    auto listing = main.ReadListing(report.hasDays ? report.query.arg(Literal(from), Literal(to)) : report.query);
    const qint64 count = listing.WaitFor(std::numeric_limits<qint64>::max());
    sheet.rows.reserve(static_cast<size_t>(count));
    for (qint64 row = 0; row < count; ++row) {
        auto& cells = sheet.rows.emplace_back();
        for (int i = 0; i < static_cast<int>(sheet.columns.size()); ++i) cells.push_back(listing.At(row, i));
    }
    return sheet;
}

values::Money SumOf(const Sheet& sheet, size_t column) {
    values::Money sum;
    for (const auto& row : sheet.rows)
        if (!row[column].IsNull()) sum += row[column].ToMoney();
    return sum;
}

}  // namespace upkeep
