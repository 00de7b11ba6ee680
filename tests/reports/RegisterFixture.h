#pragma once

#include "reports/frmTrenutnoStanjeKasa.h"
#include "support/Till.h"

// A shop with five periods (tests/data/reports/shop): 5 and 6 closed by End Report 3, 7 to 9 open on three registers,
// the last of them without an invoice. The main store is open; nobody is logged in.
class RegisterFixture : public drivers::TillTest {
protected:
    RegisterFixture();

    // The screen with what is open, or with an End Report; up and active.
    frmTrenutnoStanjeKasa& ShowState();
    frmTrenutnoStanjeKasa& ShowReview(const QString& number, const QString& date, const QString& time);
    // The text preview comes up with this report, and is closed again.
    static void ExpectPreview(drivers::Boxes& boxes, const QString& contents);
    // The rows of the list, cells joined by "|".
    static QStringList Shown(const forms::Form& form);
    // An invoice of cashier 2 with one line, of the product "P" and the number.
    static void Sell(const QString& number, QDate day, const QString& amount);
};

// A report, up and active.
template <typename Report>
forms::Form& ShowReport() {
    auto* form = forms::Open<Report>();
    form->Show();
    drivers::Settle();
    return *form;
}

// The days of a report: a period ("20.11.2026-24.11.2026"), or one day, by Enter in the month view.
void Choose(const forms::Form& report, const QString& days);
