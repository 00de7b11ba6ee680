#include "forms/ListView.h"
#include "screens/Tour.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

struct Report {
    const char16_t* entry;
    const char16_t* screen;
    const char16_t* picture;
    bool hasPeriod = true;
    const char16_t* option = nullptr;  // what to total by, other than at first
};

// The list of invoices is on its picture already, among the receipts.
constexpr Report Reports[] = {
    {u"mnuProdajaPoKasiru", u"frmSales", u"report-cashiers"},
    {u"mnuPreProducts", u"frmSalesProducts", u"report-products"},
    {u"mnuKIF", u"frmIzvjestajKIF", u"report-tax-book"},
    {u"mnuPorezPoRacunima", u"frmTaxbyInvoice", u"report-tax-invoices", true, u"optStopa"},
    {u"mnuPorezPoStopama", u"frmSalesTax", u"report-tax-rates"},
    {u"mnuViewUsersTable", u"frmActivity", u"report-working-time"},
    {u"mnuPregledZakljucaka", u"frmZakljucakPregled", u"report-periods"},
    {u"mnuStanjeArtikala", u"frmStanjeArtikala", u"stock", false},
    {u"mnuPopis", u"frmPopisRobe", u"inventory", false},
};

const auto State = u"frmTrenutnoStanjeKasa"_s;
const auto EndReports = u"frmZakljucakPregled1"_s;

}  // namespace

void Tour::ReadReports() {
    clock.Pass(6);
    for (const Report& report : Reports) {
        const QString screen = QString::fromUtf16(report.screen);
        cashier.Visit(QString::fromUtf16(report.entry), screen, [&] {
            if (report.option) cashier.Fill(screen, QString::fromUtf16(report.option), u"{Space}"_s);
            if (report.hasPeriod) cashier.Click(screen, u"Command1"_s);
            cashier.TakePicture(QString::fromUtf16(report.picture));
            cashier.Press(u"{F12}"_s);
        });
    }
}

void Tour::LookAtTheRegister() {
    clock.Pass(12);
    cashier.Visit(u"mnuTrenutnoKasa"_s, State, [this] {
        cashier.TakePicture(u"state-registers"_s);
        cashier.Press(u"2"_s);
        cashier.TakePicture(u"state-cashiers"_s);
        cashier.Press(u"3"_s);
        cashier.TakePicture(u"state-invoices"_s);
        cashier.Press(u"4"_s);
        cashier.TakePicture(u"state-products"_s);
        cashier.Press(u"{F12}"_s);
    });
    cashier.Visit(u"mnuPregledZakljucaka1"_s, EndReports, [this] {
        cashier.Click(EndReports, u"Command1"_s);
        cashier.List(EndReports)->Select(2);
        cashier.TakePicture(u"end-reports"_s);
        cashier.Within(State, [this] {
            cashier.Press(u"2"_s);
            cashier.TakePicture(u"end-report"_s);
            cashier.Press(u"{F12}"_s);
        });
        cashier.PressAndAnswer(u"{Enter}"_s);
        cashier.Press(u"{F12}"_s);
    });
}

}  // namespace screens
