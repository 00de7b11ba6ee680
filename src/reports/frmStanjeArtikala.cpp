#include "reports/frmStanjeArtikala.h"

#include "core/dbModule.h"
#include "values/Clock.h"
#include "values/DateText.h"

using namespace Qt::StringLiterals;

namespace {

const auto ProductsQuery = u"SELECT ProdCode, ProdDescription, Unit,  Qty, [Unitprice]*[qty] AS iznos FROM Products "_s;

const ReportFacts Facts{
    .name = u"frmStanjeArtikala"_s,
    .caption = u"Quantity of items in stock"_s,
    .columns = {{u"ProductID"_s, 150},
                {u"ProductName"_s, -1},
                {u"Unit"_s, 70},
                {u"Quantity"_s, 120, Look::Number},
                {u"Amount"_s, 140, Look::Amount}},
    .sums = {{u"TOTAL:"_s, u"txtTotalAmount"_s, 4}},
    .layouts = {{.title = {u"Quantity of items in stock"_s},
                 .head = {u"No Product Name      Unit Quanti  Amount"_s},
                 .item = {{Left(3, 0), Left(20, 1), Right(3, 2), Right(6, 3), Right(8, 4)}},
                 .total = u"TOTAL: "_s}},
    .emptyList = u"List does not contain any item."_s,
};

}  // namespace

frmStanjeArtikala::frmStanjeArtikala() : ListReport(Facts) {
    PrintAndSave();
    AddButton(u"cmdOsvjezi"_s, u"F6-Refresh"_s, Qt::Key_F6, &frmStanjeArtikala::cmdOsvjezi_Click);
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
    ui.lblNaslov->setText(values::DateText(now.date()) + u"  "_s + values::TimeText(now.time()));
}
