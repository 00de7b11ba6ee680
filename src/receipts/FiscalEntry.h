#pragma once

#include "forms/Form.h"
#include "ui_FiscalEntry.h"

// A number that goes to the fiscal printer: the screen of deposits and of withdrawn invoices. Each of them says in
// words how it differs, and which record the number makes.
class FiscalEntry : public forms::Form {
    Q_OBJECT

protected:
    struct Words {
        QString name;  // of the form
        QString title;
        QString frame;
        QString note;
        QString label;
        QString toolTip;
        QString notNumeric;
        QString confirmation;
    };

    explicit FiscalEntry(const Words& words);

    // The record for a text that is a number.
    virtual QString Record(const QString& number) const = 0;

    Ui::FiscalEntry ui;

private:
    void cmdClose_Click();

    const QString notNumeric_;
    const QString confirmation_;
};
