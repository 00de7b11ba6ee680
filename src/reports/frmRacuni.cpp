#include "reports/frmRacuni.h"

#include "receipts/frmRacPRG.h"

using namespace Qt::StringLiterals;
using values::Paper;

namespace {

constexpr int InvoiceColumn = 5;
const auto WhereInvoice = u" WHERE InvoiceID = '%1'"_s;

ReportFacts Facts() {
    return {
        .name = u"frmRacuni"_s,
        .caption = frmRacuni::tr("Invoices"),
        .variants = {{.head =
                          u"SELECT Val(OrNo), CashierName, DateSold, TimeSold, CashAmount, InvoiceID FROM Invoices"_s,
                      .group = u" ORDER BY Val(OrNo)"_s}},
        .days = {.day = u" WHERE DateSold = #"_s,
                 .from = u"  WHERE (DateSold >= #"_s,
                 .to = u"# AND DateSold <= #"_s,
                 .end = u"#)"_s},
        .columns = {{frmRacuni::tr("InvoiceNo"), 100},
                    {frmRacuni::tr("Cashier"), -1},
                    {frmRacuni::tr("Date"), 120},
                    {frmRacuni::tr("Time"), 110},
                    {frmRacuni::tr("Amount"), 130, Look::Amount},
                    {frmRacuni::tr("InvoiceID"), 0}},
        .sums = {{frmRacuni::tr("TOTAL:"), u"txtTotalAmount"_s, 4}},
        .layouts = {{//: at most 40 columns
                     .title = {Paper::tr("Invoices ")},
                     //: 40 columns: number 5, cashier 8, date 9, time 9, amount 9
                     .head = {Paper::tr("InNo Cashie    Date       Time    Amount")},
                     .item = {{Left(5, 0), Left(8, 1), Right(9, 2, u"dd.mm.yy"_s), Right(9, 3), Right(9, 4)}},
                     //: at most 10 columns, amounts stand behind it
                     .total = Paper::tr("TOTAL: ")}},
    };
}

}  // namespace

frmRacuni::frmRacuni() : PeriodReport(Facts()) {
    AddButton(u"cmdPrintPregled"_s, tr("F4-Print list invoices"), Qt::Key_F4, &frmRacuni::cmdPrintPregled_Click);
    AddButton(u"cmdPrintPregled1"_s, tr("F6 -Print selected invoice"), Qt::Key_F6, &frmRacuni::cmdPrintPregled1_Click);
    AddButton(u"cmdSacuvaj"_s, tr("F5-Save"), Qt::Key_F5, &frmRacuni::cmdSacuvaj_Click);
    AddButton(u"cmdPrint"_s, tr("Print"), Qt::Key_unknown, &frmRacuni::cmdPrint_Click);
}

// Before days were chosen these are all invoices.
void frmRacuni::cmdPrintPregled_Click() {
    PreviewInvoices(queryWhere_);
}

void frmRacuni::cmdPrintPregled1_Click() {
    if (ui.lv1->Selected() >= 0) PreviewInvoices(WhereInvoice.arg(ui.lv1->SelectedText(InvoiceColumn)));
}

// The review brings up the preview while it loads; it is not shown itself.
void frmRacuni::PreviewInvoices(const QString& where) {
    frmRacPRG review;
    review.strSQLwhere = where;
    review.Printaj = true;
    review.Load();
    review.Unload();
}
