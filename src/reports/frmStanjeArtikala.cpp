#include "reports/frmStanjeArtikala.h"

#include "core/dbModule.h"
#include "values/Clock.h"
#include "values/DateText.h"

using namespace Qt::StringLiterals;
using values::Paper;

namespace {

const auto ProductsQuery = u"SELECT ProdCode, ProdDescription, Unit,  Qty, [Unitprice]*[qty] AS iznos FROM Products "_s;

ReportFacts Facts() {
    return {
        .name = u"frmStanjeArtikala"_s,
        .caption = frmStanjeArtikala::tr("Quantity of items in stock"),
        .columns = {{frmStanjeArtikala::tr("ProductID"), 150},
                    {frmStanjeArtikala::tr("ProductName"), -1},
                    {frmStanjeArtikala::tr("Unit"), 70},
                    {frmStanjeArtikala::tr("Quantity"), 120, Look::Number},
                    {frmStanjeArtikala::tr("Amount"), 140, Look::Amount}},
        .sums = {{frmStanjeArtikala::tr("TOTAL:"), u"txtTotalAmount"_s, 4}},
        .layouts = {{//: at most 40 columns
                     .title = {Paper::tr("Quantity of items in stock")},
                     //: 40 columns: code 3, name 20, unit 3, quantity 6, amount 8
                     .head = {Paper::tr("No Product Name      Unit Quanti  Amount")},
                     .item = {{Left(3, 0), Left(20, 1), Right(3, 2), Right(6, 3), Right(8, 4)}},
                     //: at most 10 columns, amounts stand behind it
                     .total = Paper::tr("TOTAL: ")}},
        .emptyList = frmStanjeArtikala::tr("List does not contain any item."),
    };
}

}  // namespace

frmStanjeArtikala::frmStanjeArtikala() : ListReport(Facts()) {
    PrintAndSave();
    AddButton(u"cmdOsvjezi"_s, tr("F6-Refresh"), Qt::Key_F6, &frmStanjeArtikala::cmdOsvjezi_Click);
}

void frmStanjeArtikala::Form_Load() {
    if (!OpenAndSum(ProductsQuery)) return rsList_.Close();
    TellTime();
}

store::Listing frmStanjeArtikala::Read(const QString& query) {
    rsList_ = MainStore().OpenRecordset(query);
    return rsList_.ListNow();
}

// The same rows with what they hold now; the total stays that of the opening.
void frmStanjeArtikala::cmdOsvjezi_Click() {
    if (rsList_.IsOpen()) ListRows(rsList_.ListNow());
    TellTime();
}

void frmStanjeArtikala::TellTime() {
    const QDateTime now = values::Now();
    const QString title = values::DateText(now.date()) + u"  "_s + values::TimeText(now.time());
    ShowTitle(title, title);
}
