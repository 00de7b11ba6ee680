#include "receipts/ReceiptLayout.h"

#include <algorithm>

#include "core/Settings.h"

using namespace Qt::StringLiterals;

using enum InvoiceText::Item::Column;

namespace {

const PrintField Blank = Words(u" "_s);

const PrintFields WideFigures{Right(8, UnitPrice),  Blank,          Right(7, Quantity),  Blank,
                              Right(5, TaxPercent), Words(u"% "_s), Right(7, TaxAmount), Blank,
                              Right(8, Amount)};

//: 40 columns, all to the right: price 8, quantity 8, tax rate 7, tax 8, amount 9
const QString WideHead = QStringLiteral(QT_TRANSLATE_NOOP("Paper", "   Price Quantit TaxRat     TAX   Amount"));

const ReceiptLayout PrintItemsLayout1{
    .tipRacuna = u"1"_s,
    //: 40 columns: code and description, one blank between them
    .head = {QStringLiteral(QT_TRANSLATE_NOOP("Paper", "ProductID  Product description          ")), WideHead},
    .item = {{Whole(Code), Blank, FillTo(40, Description)}, WideFigures}};

const ReceiptLayout PrintItemsLayout2{
    .tipRacuna = u"2"_s,
    //: 40 columns: product 18, and to the right price 8, quantity 6, amount 8
    .head = {QStringLiteral(QT_TRANSLATE_NOOP("Paper", "Product              Price Quant  Amount"))},
    .item = {{Left(18, Description), Right(8, UnitPrice), Right(6, Quantity), Right(8, Amount)}}};

const ReceiptLayout PrintItemsLayout3{
    .tipRacuna = u"3"_s,
    //: 40 columns: number and description, one blank between them
    .head = {QStringLiteral(QT_TRANSLATE_NOOP("Paper", "No Product description                  ")), WideHead},
    .item = {{Whole(RowNumber), Blank, FillTo(40, Description)}, WideFigures}};

const ReceiptLayout PrintItemsLayout4{
    .tipRacuna = u"4"_s,
    //: 40 columns: number 3, product 15, and to the right price 8, quantity 6, amount 8
    .head = {QStringLiteral(QT_TRANSLATE_NOOP("Paper", "No Product           Price Quant  Amount"))},
    .item = {{Left(3, RowNumber), Left(15, Description), Right(8, UnitPrice), Right(6, Quantity), Right(8, Amount)}}};

const ReceiptLayout PrintItemsLayout5{
    .tipRacuna = u"5"_s,
    .width = 80,
    .rule = u'_',
    .head =
        {//: 80 columns: number and name 35, and to the right unit 4, quantity 8, price 8, amount 8, tax 8, amount 9
         QStringLiteral(QT_TRANSLATE_NOOP(
             "Paper", "No Product name                    Unit Quantit Price    Amount     Tax   Amount")),
         //: 80 columns, below the line before: price and first amount "without tax", last amount "with tax"
         QStringLiteral(QT_TRANSLATE_NOOP(
             "Paper", "                                                 outTax   outTax         withTax"))},
    .item = {{Whole(RowNumber), Blank, FillTo(35, Description), Blank, Right(3, Unit), Blank, Right(7, Quantity),
              Right(8, PriceWithoutTax), Blank, Right(7, AmountWithoutTax), Blank, Right(7, TaxAmount), Blank,
              Right(8, Amount)}},
    .isReviewed = false,
    .date = DateBlock::A4,
    .totalsWidth = 80,
    .nameSize = 20};

// Its paper has 32 columns, but a sale's date and all totals are those of 40.
const ReceiptLayout PrintItemsLayout6{
    .tipRacuna = u"6"_s,
    .width = 32,
    .head =
        {//: 32 columns: number and description, one blank between them
         QStringLiteral(QT_TRANSLATE_NOOP("Paper", "No Product description          ")),
         //: 32 columns, all to the right: price 9, quantity 10, amount 13
         QStringLiteral(QT_TRANSLATE_NOOP("Paper", "     Price  Quantity      Amount"))},
    .item = {{Whole(RowNumber), Blank, FillTo(32, Description)},
             {Right(9, UnitPrice), Right(10, Quantity), Right(13, Amount)}},
    .reviewDate = DateBlock::TwoLines};

const ReceiptLayout PrintItemsLayout7{
    .tipRacuna = u"7"_s,
    .width = 32,
    //: 32 columns: product 10, and to the right price 8, quantity 6, amount 8
    .head = {QStringLiteral(QT_TRANSLATE_NOOP("Paper", "Product      Price Quant  Amount"))},
    .item = {{Left(10, Description), Right(8, UnitPrice), Right(6, Quantity), Right(8, Amount)}},
    .date = DateBlock::TwoLines,
    .reviewDate = DateBlock::TwoLines,
    .totalsWidth = 32};

const ReceiptLayout* const Layouts[]{&PrintItemsLayout1, &PrintItemsLayout2, &PrintItemsLayout3, &PrintItemsLayout4,
                                     &PrintItemsLayout5, &PrintItemsLayout6, &PrintItemsLayout7};

const ReceiptLayout WithoutItems{};

}  // namespace

std::span<const ReceiptLayout* const> ReceiptLayouts() {
    return Layouts;
}

const ReceiptLayout& ChosenLayout() {
    const auto tipRacuna = [](const ReceiptLayout* layout) { return layout->tipRacuna; };
    const auto layout = std::ranges::find(Layouts, TheSettings.TipRacuna, tipRacuna);
    return layout == std::end(Layouts) ? WithoutItems : **layout;
}
