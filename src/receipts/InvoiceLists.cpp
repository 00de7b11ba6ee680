#include "receipts/InvoiceLists.h"

#include "receipts/ReceiptWords.h"
#include "receipts/TaxRecap.h"

namespace {

enum TaxColumn { RecapTaxID, RecapNothing, RecapPercent, RecapAmount, RecapTax };

}  // namespace

void SetLineColumns(forms::ListView& lines, LinesOf screen) {
    const bool isReview = screen == LinesOf::Review;
    std::vector<forms::ListColumn> columns{{ReceiptWords::tr("Code"), Qt::AlignLeft, 128, true},
                                           {ReceiptWords::tr("Product name"), Qt::AlignLeft, -1},
                                           {ReceiptWords::tr("Price"), Qt::AlignRight, 78},
                                           {ReceiptWords::tr("Quantity"), Qt::AlignRight, 76},
                                           {ReceiptWords::tr("Amount"), Qt::AlignRight, 76},
                                           {ReceiptWords::tr("Tax %"), Qt::AlignRight, 60},
                                           {ReceiptWords::tr("Tax"), Qt::AlignRight, isReview ? 70 : 0},
                                           {ReceiptWords::tr("Unit"), Qt::AlignLeft, isReview ? 60 : 0},
                                           {ReceiptWords::tr("TaxID"), Qt::AlignLeft, 0}};
    if (!isReview) columns.push_back({ReceiptWords::tr("ID"), Qt::AlignLeft, 0});
    lines.SetColumns(std::move(columns));
}

void SetRecapColumns(forms::ListView& recap) {
    recap.MakeTight();
    recap.SetColumns({{ReceiptWords::tr("TaxID"), Qt::AlignLeft, -1},
                      {{}, Qt::AlignLeft, 0},
                      {ReceiptWords::tr("Rate"), Qt::AlignRight, 60},
                      {ReceiptWords::tr("Amount"), Qt::AlignRight, 76},
                      {ReceiptWords::tr("Tax"), Qt::AlignRight, 62}});
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
