// The reports over a day, a month and all days, until the list is filled and painted.

#include <QDateEdit>
#include <QRadioButton>
#include <string_view>

#include "bench/Figures.h"
#include "bench/PlainList.h"
#include "bench/RawStore.h"
#include "bench/UntilPainted.h"
#include "forms/Controls.h"
#include "reports/frmActivity.h"
#include "reports/frmIzvjestajKIF.h"
#include "reports/frmPopisRobe.h"
#include "reports/frmRacuni.h"
#include "reports/frmSales.h"
#include "reports/frmSalesProducts.h"
#include "reports/frmSalesTax.h"
#include "reports/frmStanjeArtikala.h"
#include "reports/frmTaxbyInvoice.h"
#include "reports/frmZakljucakPregled.h"
#include "reports/frmZakljucakPregled1.h"
#include "values/DateText.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

// The lists show and sum two decimals.
constexpr qint64 UnitsOfCent = values::Money::Scale / 100;

struct Period {
    const char* name;
    qint64 days;  // from the middle of all days on; 0: all days
    int repetitions = 0;
};

constexpr Period Always{"all days", 0, 3};
constexpr Period Periods[] = {{"a day", 1}, {"a month", 30}, Always};

using Screen = std::unique_ptr<forms::Form>;

template <typename Report>
Screen Make() {
    return std::make_unique<Report>();
}

// A report, and the same by hand: ?1 and ?2 are the first and the last day. Columns: t text, w whole number, n number
// in ten-thousandths, d date, h time, a amount, s amount that is summed up.
struct Report {
    const char* name;
    Screen (*make)();
    const char16_t* option;
    const char* query;
    const char* columns;
};

constexpr Report Reports[] = {
    {"sales by day", Make<frmSales>, u"optDatum",
     "SELECT i.CashierID, u.UserName, i.DateSold, sum(i.CashAmount) FROM Invoices i LEFT JOIN Users u "
     "ON u.UserID = i.CashierID WHERE i.DateSold BETWEEN ?1 AND ?2 GROUP BY i.CashierID, u.UserName, i.DateSold",
     "ttds"},
    {"sales by cashier", Make<frmSales>, u"optStopa",
     "SELECT i.CashierID, u.UserName, '', sum(i.CashAmount) FROM Invoices i LEFT JOIN Users u "
     "ON u.UserID = i.CashierID WHERE i.DateSold BETWEEN ?1 AND ?2 GROUP BY i.CashierID, u.UserName",
     "ttts"},
    {"sales by products", Make<frmSalesProducts>, nullptr,
     "SELECT d.ProdCode, d.ProdDescription, d.Unit, sum(d.QtySold), sum(d.Amount) FROM Invoices i JOIN SalesDetails d "
     "ON d.InvoiceID = i.InvoiceID WHERE i.DateSold BETWEEN ?1 AND ?2 GROUP BY d.ProdCode, d.ProdDescription, d.Unit",
     "tttns"},
    {"taxes by day", Make<frmSalesTax>, u"optDatum",
     "SELECT t.TaxID, t.Name, t.Percent, i.DateSold, sum(d.Amount) - sum(d.TaxAmount), sum(d.TaxAmount), sum(d.Amount) "
     "FROM Invoices i JOIN SalesDetails d ON d.InvoiceID = i.InvoiceID JOIN Tax t ON t.TaxID = d.TaxID "
     "WHERE i.DateSold BETWEEN ?1 AND ?2 GROUP BY i.DateSold, t.TaxID, t.Name, t.Percent",
     "ttadsss"},
    {"taxes by rate", Make<frmSalesTax>, u"optStopa",
     "SELECT t.TaxID, t.Name, t.Percent, ' ', sum(d.Amount) - sum(d.TaxAmount), sum(d.TaxAmount), sum(d.Amount) "
     "FROM Invoices i JOIN SalesDetails d ON d.InvoiceID = i.InvoiceID JOIN Tax t ON t.TaxID = d.TaxID "
     "WHERE i.DateSold BETWEEN ?1 AND ?2 GROUP BY t.TaxID, t.Name, t.Percent",
     "ttatsss"},
    {"invoice taxes by day", Make<frmTaxbyInvoice>, u"optDatum",
     "SELECT ' ', DateSold, ' ', sum(CashAmount) - sum(TaxTotal), sum(TaxTotal), sum(CashAmount) FROM Invoices "
     "WHERE DateSold BETWEEN ?1 AND ?2 GROUP BY DateSold",
     "tdtsss"},
    {"invoice taxes by invoice", Make<frmTaxbyInvoice>, u"optStopa",
     "SELECT OrNo, DateSold, TimeSold, CashAmount - TaxTotal, TaxTotal, CashAmount FROM Invoices "
     "WHERE DateSold BETWEEN ?1 AND ?2",
     "tdhsss"},
    {"invoices for tax report", Make<frmIzvjestajKIF>, nullptr,
     "SELECT DateSold, min(velton_val(OrNo)), max(velton_val(OrNo)), sum(CashAmount) - sum(TaxTotal), sum(TaxTotal), "
     "sum(CashAmount) FROM Invoices WHERE DateSold BETWEEN ?1 AND ?2 GROUP BY DateSold",
     "dwwsss"},
    {"periods", Make<frmZakljucakPregled>, nullptr,
     "SELECT Kas, SalesID, DateGenerated, TimeGenerated, TimeStoped, TotalSales FROM Sales "
     "WHERE DateGenerated BETWEEN ?1 AND ?2",
     "wtdhhs"},
    {"end reports", Make<frmZakljucakPregled1>, nullptr,
     "SELECT Grupni, DateStoped, TimeStoped, sum(TotalSales) FROM Sales WHERE DateStoped BETWEEN ?1 AND ?2 "
     "GROUP BY Grupni, DateStoped, TimeStoped",
     "wdhs"},
    {"invoices", Make<frmRacuni>, nullptr,
     "SELECT velton_val(OrNo), CashierName, DateSold, TimeSold, CashAmount, InvoiceID FROM Invoices "
     "WHERE DateSold BETWEEN ?1 AND ?2 ORDER BY velton_val(OrNo)",
     "wtdhst"},
    {"working time", Make<frmActivity>, nullptr,
     "SELECT Kas, Date, DateOut, LoginTime, LogOut FROM Login WHERE Date BETWEEN ?1 AND ?2", "wddhh"},
};

// These show the products as they are when the screen opens, and are measured with the opening of the screen.
constexpr Report StockLists[] = {
    {"stock", Make<frmStanjeArtikala>, nullptr,
     "SELECT ProdCode, ProdDescription, Unit, Qty, (UnitPrice * Qty + 5000) / 10000 FROM Products", "tttns"},
    {"list of goods", Make<frmPopisRobe>, nullptr,
     "SELECT ProdCode, ProdDescription, Unit, Qty, UnitPrice, (UnitPrice * Qty + 5000) / 10000 FROM Products",
     "tttnas"},
};

QDate FirstOf(const Period& period, const ShopSize& size) {
    return Shop::DayAt(period.days == 0 ? 0 : 0.5, size.days);
}

QDate LastOf(const Period& period, const ShopSize& size) {
    return period.days == 0 ? Shop::LastDay() : FirstOf(period, size).addDays(period.days - 1);
}

// The number of rows and the last of the sums, in cents.
qint64 Digest(forms::Form& form) {
    const QLineEdit* total = form.findChild<QLineEdit*>(u"txtTotalAmount"_s);
    const qint64 sum = total == nullptr ? 0 : values::CMoney(total->text()).Units() / UnitsOfCent;
    return form.findChild<forms::ListView*>(u"lv1"_s)->Count() + sum;
}

qint64 WhenPainted(forms::Form& form) {
    UntilPainted{*form.findChild<forms::ListView*>(u"lv1"_s)};
    return Digest(form);
}

Work Ours(const LateShop& shop, const Report& report, const Period& period) {
    const auto program = std::make_shared<LoggedIn>(shop.Get().Folder());
    const std::shared_ptr<forms::Form> form = report.make();
    form->Show();
    if (report.option != nullptr) form->findChild<QRadioButton*>(QString::fromUtf16(report.option))->click();
    form->findChild<QDateEdit*>(u"DTPicker1"_s)->setDate(FirstOf(period, shop.Size()));
    form->findChild<QDateEdit*>(u"DTPicker2"_s)->setDate(LastOf(period, shop.Size()));
    return [program, form] {
        form->findChild<QAbstractButton*>(u"Command1"_s)->click();
        return WhenPainted(*form);
    };
}

Work OpenOurs(const LateShop& shop, const Report& report) {
    const auto program = std::make_shared<LoggedIn>(shop.Get().Folder());
    return [program, &report] {
        const Screen form = report.make();
        form->Show();
        return WhenPainted(*form);
    };
}

QString AmountText(qint64 cents) {
    const QString digits = QString::number(cents).rightJustified(3, u'0');
    return digits.first(digits.size() - 2) + u'.' + digits.last(2);
}

QString CellText(RawStatement& row, int column, char kind) {
    switch (kind) {
        case 't':
            return row.Text(column);
        case 'w':
            return QString::number(row.Integer(column));
        case 'n':
            return values::NumberText(values::Money::FromUnits(row.Integer(column)));
        case 'd':
            return values::DateText(QDate::fromJulianDay(row.Integer(column)));
        case 'h':
            return values::TimeText(QTime::fromMSecsSinceStartOfDay(static_cast<int>(row.Integer(column)) * 1000));
        default:
            return AmountText((row.Integer(column) + UnitsOfCent / 2) / UnitsOfCent);
    }
}

// Lists every cell as the report does, and sums up what is shown.
qint64 ListByHand(RawStatement& rows, std::string_view columns, PlainList& list) {
    std::vector<QString> cells;
    std::vector<qint64> sums(columns.size());
    qint64 count = 0;
    for (; rows.Step(); ++count) {
        for (size_t column = 0; column < columns.size(); ++column) {
            const int at = static_cast<int>(column);
            cells.push_back(CellText(rows, at, columns[column]));
            if (columns[column] == 's') sums[column] += (rows.Integer(at) + UnitsOfCent / 2) / UnitsOfCent;
        }
    }
    rows.Reset();
    list.Show(std::move(cells));
    const auto last = columns.rfind('s');
    return count + (last == columns.npos ? 0 : sums[last]);
}

int ColumnsOf(const Report& report) {
    return static_cast<int>(std::string_view(report.columns).size());
}

Work ByHand(const LateShop& shop, const Report& report, const Period& period) {
    const auto raw = std::make_shared<RawStore>(shop.Get().StorePath());
    const auto rows = std::make_shared<RawStatement>(raw->Prepare(report.query));
    const auto list = std::make_shared<PlainList>(ColumnsOf(report));
    rows->Bind(1, FirstOf(period, shop.Size()).toJulianDay());
    rows->Bind(2, LastOf(period, shop.Size()).toJulianDay());
    return [raw, rows, list, &report] { return ListByHand(*rows, report.columns, *list); };
}

Work OpenByHand(const LateShop& shop, const Report& report) {
    const auto raw = std::make_shared<RawStore>(shop.Get().StorePath());
    const auto rows = std::make_shared<RawStatement>(raw->Prepare(report.query));
    return [raw, rows, &report] {
        PlainList list(ColumnsOf(report));
        return ListByHand(*rows, report.columns, list);
    };
}

Figure Beside(const Report& report, const Period& period, double goal, Start ours, Start byHand) {
    return {.name = std::string(report.name) + ", " + period.name,
            .ours = std::move(ours),
            .yardsticks = {{"raw SQLite, plain list, painted", std::move(byHand), goal}},
            .iterations = 1,
            .repetitions = period.repetitions};
}

}  // namespace

std::vector<Figure> ReportFigures(const LateShop& shop) {
    std::vector<Figure> figures;
    for (const Report& report : Reports) {
        for (const Period& period : Periods)
            figures.push_back(Beside(
                report, period, 1.5, [&] { return Ours(shop, report, period); },
                [&] { return ByHand(shop, report, period); }));
    }
    for (const Report& list : StockLists)
        figures.push_back(Beside(
            list, Always, 1.3, [&] { return OpenOurs(shop, list); }, [&] { return OpenByHand(shop, list); }));
    return figures;
}

}  // namespace bench
