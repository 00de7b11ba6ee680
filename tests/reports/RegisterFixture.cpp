#include "reports/RegisterFixture.h"

#include <QCalendarWidget>
#include <QDateEdit>
#include <QPushButton>

#include "core/dbModule.h"
#include "player/Keys.h"
#include "reports/frmActivity.h"
#include "reports/frmIzvjestajKIF.h"
#include "reports/frmPopisRobe.h"
#include "reports/frmRacuni.h"
#include "reports/frmSales.h"
#include "reports/frmSalesProducts.h"
#include "reports/frmSalesTax.h"
#include "reports/frmStanjeArtikala.h"
#include "reports/frmTaxbyInvoice.h"
#include "reports/frmZakljucakPregled.h"
#include "reports/frmZakljucakPregled1.h"
#include "store/StorePath.h"
#include "values/DateText.h"

using namespace Qt::StringLiterals;

namespace {

template <typename Report>
forms::Form* Open() {
    return forms::Open<Report>();
}

const QMap<QString, forms::Form* (*)()> Reports = {
    {u"frmActivity"_s, Open<frmActivity>},
    {u"frmIzvjestajKIF"_s, Open<frmIzvjestajKIF>},
    {u"frmPopisRobe"_s, Open<frmPopisRobe>},
    {u"frmRacuni"_s, Open<frmRacuni>},
    {u"frmSales"_s, Open<frmSales>},
    {u"frmSalesProducts"_s, Open<frmSalesProducts>},
    {u"frmSalesTax"_s, Open<frmSalesTax>},
    {u"frmStanjeArtikala"_s, Open<frmStanjeArtikala>},
    {u"frmTaxbyInvoice"_s, Open<frmTaxbyInvoice>},
    {u"frmZakljucakPregled"_s, Open<frmZakljucakPregled>},
    {u"frmZakljucakPregled1"_s, Open<frmZakljucakPregled1>},
};

}  // namespace

void OpenShopOfReports(const QString& folder) {
    drivers::LoadTables(*store::Database::Open(store::MainPlace(folder), store::MainSchema()), u"reports/shop"_s);
    OpenMainStore();
}

QStringList ReportNames() {
    return Reports.keys();
}

forms::Form& ShowReport(const QString& name) {
    if (!forms::LoadedForms().isEmpty()) forms::LoadedForms().last()->Unload();
    forms::Form* form = Reports[name]();
    form->Show();
    drivers::Settle();
    return *form;
}

void RegisterFixture::Sell(const QString& number, QDate day, const QString& amount) {
    drivers::AddRows(MainStore(), u"Invoices"_s,
                     {u"InvoiceID=%1 | OrNo=%1 | CashierID=2 | DateSold=%2 | CashAmount=%3"_s.arg(
                         number, values::DateText(day), amount)});
    drivers::AddRows(MainStore(), u"SalesDetails"_s,
                     {u"InvoiceID=%1 | ProdCode=P%1 | Amount=%2"_s.arg(number, amount)});
}

void Choose(const forms::Form& report, const QString& days) {
    using drivers::Get;
    const QStringList ends = days.split(u'-', Qt::SkipEmptyParts);
    const auto date = [&](qsizetype end) { return QDate::fromString(ends[end], u"dd.MM.yyyy"_s); };
    if (ends.size() == 1) {
        auto* month = Get<QCalendarWidget>(report, u"mv1");
        month->setSelectedDate(date(0));
        month->setFocus();
        drivers::Keys(u"{Enter}");
    }
    if (ends.size() == 2) {
        Get<QDateEdit>(report, u"DTPicker1")->setDate(date(0));
        Get<QDateEdit>(report, u"DTPicker2")->setDate(date(1));
        Get<QPushButton>(report, u"Command1")->setFocus();
        drivers::Keys(u" ");
    }
}
