#pragma once

#include <QStringList>
#include <span>

#include "core/PrintField.h"
#include "receipts/InvoiceText.h"

// What a receipt looks like, as a table of facts: one layout for each kind of paper and of item lines. ReceiptParts
// does the rest. Heading, tax block and footer are alike in all of them.

enum class DateBlock {
    OneLine,   // number, date and time
    TwoLines,  // date and time, then the number
    A4,        // the days of issue and of delivery, then the number in larger type
};

// What item lines show beside the texts of InvoiceText::Item::Column.
enum ReceiptColumn { RowNumber = static_cast<int>(LineTexts.size()), PriceWithoutTax, AmountWithoutTax };

// Widths are in columns of the paper.
struct ReceiptLayout {
    QString tipRacuna = {};  // the setting that chooses it
    int width = 40;          // of the item block
    QChar rule = u'-';
    QStringList head = {};               // between two rules; texts of values::Paper, put into its language as printed
    std::vector<PrintFields> item = {};  // the lines of a row; without them there is no item block
    bool isReviewed = true;              // whether a stored invoice shows its items
    DateBlock date = DateBlock::OneLine;
    DateBlock reviewDate = DateBlock::OneLine;  // of a stored invoice
    int totalsWidth = 40;
    double nameSize = 0;  // of the shop's name on the page printer, in points; 0 as the settings have it
};

// The tax block's, in every layout.
inline constexpr int RecapWidth = 15;

std::span<const ReceiptLayout* const> ReceiptLayouts();
// The layout that the settings choose; one without items when they name none.
const ReceiptLayout& ChosenLayout();
