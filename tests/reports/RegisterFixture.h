#pragma once

#include "forms/Form.h"
#include "support/Till.h"

// Loads a shop with five periods (tests/data/reports/shop) into a till's folder and opens its main store: 5 and 6 are
// closed by End Report 3, 7 to 9 open on three registers, the last of them without an invoice.
void OpenShopOfReports(const QString& folder);

QStringList ReportNames();
// A report by its name, up and active; the one that is open closes.
forms::Form& ShowReport(const QString& name);

// The days of a report: a period ("20.11.2026-24.11.2026"), or one day, by Enter in the month view.
void Choose(const forms::Form& report, const QString& days);

// Reports on this shop; nobody is logged in.
class RegisterFixture : public drivers::TillTest {
protected:
    RegisterFixture() { OpenShopOfReports(folder.path()); }

    static qsizetype Count(const forms::Form& form) { return std::ssize(drivers::List(form, u"lv1")); }
    // An invoice of cashier 2 with one line, of the product "P" and the number.
    static void Sell(const QString& number, QDate day, const QString& amount);

    drivers::Boxes boxes_;
};
