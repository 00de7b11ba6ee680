// The four lists of what the registers took since the last End Report, three of ten lines behind them.

#include <string_view>

#include "bench/Figures.h"
#include "bench/RawStore.h"
#include "forms/Controls.h"
#include "reports/frmTrenutnoStanjeKasa.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

constexpr int InvoicesTab = 2;

// The lists show and sum two decimals.
constexpr qint64 UnitsOfCent = values::Money::Scale / 100;

// Every list in turn; the digest is its rows and its sums.
class Lists {
public:
    explicit Lists(const BusyTill& till) : program_(till) { form_.Load(); }

    qint64 ShowAll() {
        qint64 digest = 0;
        for (int tab = 0; tab < 4; ++tab) {
            form_.ShowTab(tab);
            digest += form_.findChild<forms::ListView*>(u"lv1"_s)->Count() + Cents(u"txtTotalAmount");
            if (tab == InvoicesTab) digest += Cents(u"txtPDV");
        }
        return digest;
    }

private:
    qint64 Cents(QStringView box) {
        return values::CMoney(forms::TextOf(forms::Control(&form_, box))).Units() / UnitsOfCent;
    }

    LoggedIn program_;
    frmTrenutnoStanjeKasa form_;
};

Work Ours(const BusyTill& till) {
    const auto lists = std::make_shared<Lists>(till);
    return [lists] { return lists->ShowAll(); };
}

struct HandList {
    const char* query;
    std::string_view columns;  // t: text, i: integer, c: an amount of which the cents are summed
};

constexpr HandList HandLists[] = {
    {"SELECT Kas, DateGenerated, TimeGenerated, ' ', TotalSales FROM Sales WHERE Closed = 0", "iiitc"},
    {"SELECT i.CashierID, i.CashierName, '', '', sum(i.CashAmount) FROM Sales s LEFT JOIN Invoices i "
     "ON i.SalesID = s.SalesID WHERE s.Closed = 0 GROUP BY i.CashierID, i.CashierName",
     "ttttc"},
    {"SELECT i.Kas, i.OrNo, i.DateSold, i.TimeSold, i.CashAmount, i.TaxTotal, i.InvoiceID FROM Sales s JOIN Invoices i "
     "ON i.SalesID = s.SalesID WHERE s.Closed = 0 ORDER BY i.InvoiceID",
     "itiicct"},
    {"SELECT d.ProdCode, d.ProdDescription, d.Unit, sum(d.QtySold), sum(d.Amount) FROM Sales s JOIN Invoices i "
     "ON i.SalesID = s.SalesID JOIN SalesDetails d ON d.InvoiceID = i.InvoiceID WHERE s.Closed = 0 "
     "GROUP BY d.ProdCode, d.ProdDescription, d.Unit ORDER BY d.ProdCode",
     "tttic"},
};

qint64 ReadRow(RawStatement& row, std::string_view columns) {
    qint64 cents = 0;
    for (int column = 0; column < static_cast<int>(columns.size()); ++column) {
        const char kind = columns[static_cast<size_t>(column)];
        if (kind == 't')
            row.Text(column);
        else if (const qint64 units = row.Integer(column); kind == 'c')
            cents += (units + UnitsOfCent / 2) / UnitsOfCent;
    }
    return cents;
}

Work ByHand(const BusyTill& till) {
    const auto raw = std::make_shared<RawStore>(till.StorePath());
    const auto statements = std::make_shared<std::vector<RawStatement>>();
    for (const HandList& list : HandLists) statements->push_back(raw->Prepare(list.query));
    return [raw, statements] {
        qint64 digest = 0;
        for (size_t list = 0; list < statements->size(); ++list) {
            RawStatement& statement = (*statements)[list];
            for (; statement.Step(); ++digest) digest += ReadRow(statement, HandLists[list].columns);
            statement.Reset();
        }
        return digest;
    };
}

}  // namespace

Figure RegisterListsFigure(const BusyTill& till) {
    return {.name = "four lists of the register, 3 of 10 lines",
            .ours = [&till] { return Ours(till); },
            .yardsticks = {{"the queries by hand in raw SQLite", [&till] { return ByHand(till); }, 1.5}},
            .iterations = 1};
}

}  // namespace bench
