#include "receipts/InvoiceLists.h"

#include "values/Format.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using values::CMoney;
using values::Format;

namespace {

enum LineColumn { Code, Description, UnitPrice, Quantity, Amount, TaxPercent, TaxAmount, Unit, TaxID, ProductID };
enum TaxColumn { RecapTaxID, RecapNothing, RecapPercent, RecapAmount, RecapTax };

}  // namespace

void SetLineColumns(forms::ListView& lines, LinesOf screen) {
    const bool isReview = screen == LinesOf::Review;
    std::vector<forms::ListColumn> columns{{u"Code"_s, Qt::AlignLeft, 128},
                                           {u"Product name"_s, Qt::AlignLeft, -1},
                                           {u"Price"_s, Qt::AlignRight, 78},
                                           {u"Quantity"_s, Qt::AlignRight, 76},
                                           {u"Amount"_s, Qt::AlignRight, 76},
                                           {u"Tax %"_s, Qt::AlignRight, 60},
                                           {u"Tax"_s, Qt::AlignRight, isReview ? 70 : 0},
                                           {u"Unit"_s, Qt::AlignLeft, isReview ? 60 : 0},
                                           {u"TaxID"_s, Qt::AlignLeft, 0}};
    if (!isReview) columns.push_back({u"ID"_s, Qt::AlignLeft, 0});
    lines.SetColumns(std::move(columns));
}

void SetRecapColumns(forms::ListView& recap) {
    recap.SetColumns({{u"TaxID"_s, Qt::AlignLeft, -1},
                      {{}, Qt::AlignLeft, 0},
                      {u"Rate"_s, Qt::AlignRight, 60},
                      {u"Amount"_s, Qt::AlignRight, 76},
                      {u"Tax"_s, Qt::AlignRight, 62}});
}

int AddToTaxRecap(const forms::ListView& lines, int line, forms::ListView& recap) {
    const QString amount = lines.Text(line, Amount);
    const QString tax = lines.Text(line, TaxAmount);
    const int row = recap.Find(lines.Text(line, TaxID));
    if (row < 0) {
        recap.Add({lines.Text(line, TaxID),
                   {},
                   Format(lines.Text(line, TaxPercent), u"0.00"),
                   Format(amount, u"0.00"),
                   Format(tax, u"0.00")});
        return -1;
    }
    const auto add = [&](TaxColumn column, const QString& text) {
        const double sum = (CMoney(recap.Text(row, column)) + CMoney(text)).ToDouble();
        recap.SetText(row, column, Format(sum, u"0.00"));
    };
    add(RecapAmount, amount);
    add(RecapTax, tax);
    return row;
}

void RebuildTaxRecap(const forms::ListView& lines, forms::ListView& recap) {
    recap.Clear();
    int joined = -1;
    for (int line = 0; line < lines.Count(); ++line)
        if (const int row = AddToTaxRecap(lines, line, recap); row >= 0) joined = row;
    if (joined >= 0) recap.Select(joined);
}

QList<InvoiceText::Item> ItemsOf(const forms::ListView& lines) {
    QList<InvoiceText::Item> items;
    for (int row = 0; row < lines.Count(); ++row) {
        const auto text = [&](LineColumn column) { return lines.Text(row, column); };
        items << InvoiceText::Item{text(Code),   text(Description), text(UnitPrice), text(Quantity),
                                   text(Amount), text(TaxPercent),  text(TaxAmount), text(Unit),
                                   text(TaxID),  text(ProductID)};
    }
    return items;
}

QList<InvoiceText::Tax> TaxesOf(const forms::ListView& recap) {
    QList<InvoiceText::Tax> taxes;
    for (int row = 0; row < recap.Count(); ++row)
        taxes << InvoiceText::Tax{recap.Text(row, RecapTaxID), recap.Text(row, RecapPercent),
                                  recap.Text(row, RecapAmount), recap.Text(row, RecapTax)};
    return taxes;
}
