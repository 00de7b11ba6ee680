#include "reports/frmRacuni.h"

#include "receipts/frmRacPRG.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int InvoiceColumn = 5;
const auto WhereInvoice = u" WHERE InvoiceID = '%1'"_s;

const ReportFacts Facts{
    .name = u"frmRacuni"_s,
    .caption = u"Invoices"_s,
    .variants = {{.head = u"SELECT Val(OrNo), CashierName, DateSold, TimeSold, CashAmount, InvoiceID FROM Invoices"_s,
                  .group = u" ORDER BY Val(OrNo)"_s}},
    .days = {.day = u" WHERE DateSold = #"_s,
             .from = u"  WHERE (DateSold >= #"_s,
             .to = u"# AND DateSold <= #"_s,
             .end = u"#)"_s},
    .columns = {{u"InvoiceNo"_s, 100},
                {u"Cashier"_s, -1},
                {u"Date"_s, 120},
                {u"Time"_s, 110},
                {u"Amount"_s, 130, Look::Amount},
                {u"InvoiceID"_s, 0}},
    .sums = {{u"TOTAL:"_s, u"txtTotalAmount"_s, 4}},
    .layouts = {{.title = {u"Invoices "_s},
                 .head = {u"InNo Cashie    Date       Time    Amount"_s},
                 .item = {{Left(5, 0), Left(8, 1), Right(9, 2, u"dd.mm.yy"_s), Right(9, 3), Right(9, 4)}},
                 .total = u"TOTAL: "_s}},
};

}  // namespace

frmRacuni::frmRacuni() : PeriodReport(Facts) {
    AddButton(u"cmdPrintPregled"_s, u"F4-Print list invoices"_s, Qt::Key_F4, &frmRacuni::cmdPrintPregled_Click);
    AddButton(u"cmdPrintPregled1"_s, u"F6 -Print selected invoice"_s, Qt::Key_F6, &frmRacuni::cmdPrintPregled1_Click);
    AddButton(u"cmdSacuvaj"_s, u"F5-Save"_s, Qt::Key_F5, &frmRacuni::cmdSacuvaj_Click);
    AddButton(u"cmdPrint"_s, u"Print"_s, Qt::Key_unknown, &frmRacuni::cmdPrint_Click);
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
