#pragma once

#include <QCoreApplication>

// What is told of receipts and of files of text where no screen of theirs is at hand: ReceiptWords::tr("...").
class ReceiptWords {
    Q_DECLARE_TR_FUNCTIONS(ReceiptWords)
};
