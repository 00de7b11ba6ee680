#include "receipts/InvoiceLists.h"

#include "receipts/TaxRecap.h"

using namespace Qt::StringLiterals;

namespace {

enum TaxColumn { RecapTaxID, RecapNothing, RecapPercent, RecapAmount, RecapTax };

}  // namespace

void SetLineColumns(forms::ListView& lines, LinesOf screen) {
    const bool isReview = screen == LinesOf::Review;
    std::vector<forms::ListColumn> columns{{u"Code"_s, Qt::AlignLeft, 128, true},
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
    recap.MakeTight();
    recap.SetColumns({{u"TaxID"_s, Qt::AlignLeft, -1},
                      {{}, Qt::AlignLeft, 0},
                      {u"Rate"_s, Qt::AlignRight, 60},
                      {u"Amount"_s, Qt::AlignRight, 76},
                      {u"Tax"_s, Qt::AlignRight, 62}});
}

void RebuildTaxRecap(const forms::ListView& lines, forms::ListView& recap) {
    recap.Clear();
    QList<InvoiceText::Tax> taxes;
    int joined = -1;
    for (const auto& item : ItemsOf(lines))
        if (const int row = AddToTaxRecap(item, taxes); row >= 0) joined = row;
    for (const auto& tax : taxes) recap.Add({tax.taxID, {}, tax.percent, tax.amount, tax.taxAmount});
    if (joined >= 0) recap.Select(joined);
}

InvoiceText::Item ItemOf(const forms::ListView& lines, int row) {
    InvoiceText::Item item;
    int column = 0;
    for (const auto text : LineTexts) item.*text = lines.Text(row, column++);
    return item;
}

QStringList CellsOf(const InvoiceText::Item& item) {
    QStringList cells;
    for (const auto text : LineTexts) cells << item.*text;
    return cells;
}

QList<InvoiceText::Item> ItemsOf(const forms::ListView& lines) {
    QList<InvoiceText::Item> items;
    for (int row = 0; row < lines.Count(); ++row) items << ItemOf(lines, row);
    return items;
}

QList<InvoiceText::Tax> TaxesOf(const forms::ListView& recap) {
    QList<InvoiceText::Tax> taxes;
    for (int row = 0; row < recap.Count(); ++row)
        taxes << InvoiceText::Tax{recap.Text(row, RecapTaxID), recap.Text(row, RecapPercent),
                                  recap.Text(row, RecapAmount), recap.Text(row, RecapTax)};
    return taxes;
}
