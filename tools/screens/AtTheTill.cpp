#include "forms/ListView.h"
#include "player/Keys.h"
#include "screens/Sales.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

const std::vector<Sale> MorningOfAna{
    {12, {{u"9780017"}, {u"3850206"}, {u"3850206"}, {u"3850104003219"}}, u"10"},
    {21, {{u"3850002"}, {u"3850301"}}, u"5"},
    {34, {{u"2000017", u"1.65"}, {u"2000035", u"0.4"}, {u"2000126", u"1.2"}}, u"10"},
    {17, {{u"3850101043478"}, {u"3850101046462"}, {u"3850204"}}, u"20"},
};

const std::vector<Sale> NoonOfKasir{
    {25, {{u"3850201"}, {u"3850101043737"}, {u"3850101044253", u"0.25"}}, u"20"},
    {31, {{u"9780018"}, {u"3850101040712"}, {u"3850101040712"}, {u"3850206"}}, u"10"},
};

const auto Sales = u"frmORVAtouch"_s;

void PayByTouch(Cashier& cashier) {
    cashier.Click(u"frmMSGinvoice"_s, u"txtCash"_s);
    cashier.TapKey(u"key5"_s);
    cashier.TapKey(u"key0"_s);
    cashier.TakePicture(u"keypad-change"_s);
    cashier.TapKey(u"keyEnter"_s);
    cashier.TakePicture(u"change"_s);
    cashier.Press(u"{Enter}"_s);
}

}  // namespace

void Tour::OpenTheShop() {
    clock.SetTo(QDateTime(QDate(2026, 11, 24), QTime(7, 52)));
    cashier.Start();
    cashier.Click(u"frmLogin"_s, u"txtUserName"_s);
    cashier.TapKey(u"keyv"_s);
    cashier.TakePicture(u"keypad-login"_s);
    cashier.Fill(u"frmLogin"_s, u"txtUserName"_s, u"{Backspace}"_s);
    cashier.LogIn(u"voditelj"_s, u"1234"_s, u"login"_s);
    cashier.TakePicture(u"sales-empty"_s);
    cashier.OpenMenu(u"mnuPodesavanje"_s);
    cashier.TakePicture(u"menu"_s);
    cashier.Press(u"{Esc}{Esc}"_s);
}

void Tour::Sell() {
    ChangeCashier(cashier, u"ana"_s, u"change-cashier"_s);
    screens::Sell(*this, MorningOfAna);

    clock.Pass(18);
    Enter(cashier, {{u"3850104003219"}, {u"3850104003219"}, {u"9780017"}});
    cashier.Touch(u"Kava s mlijekom"_s);
    // Something without a code at hand, and by weight.
    cashier.PressAndAnswer(u"{F2}"_s);
    cashier.Press(u"sir{Down}{Down}"_s);
    cashier.TakePicture(u"find-product"_s);
    cashier.PressAndAnswer(u"{Enter}{Enter}"_s);
    cashier.Press(u"0.35"_s);
    cashier.TakePicture(u"quantity"_s);
    cashier.Click(Sales, u"txtQuantity"_s);
    cashier.TakePicture(u"keypad-quantity"_s);
    cashier.TapKey(u"keyEnter"_s);
    cashier.Answer(u"Product with this ID-barcode does not exist."_s, true, u"message"_s);
    cashier.PressAndAnswer(u"3850101999999{Enter}"_s);
    cashier.Press(u"{Del}"_s);

    cashier.Fill(Sales, u"txtKupac"_s, u"Restoran Stari Most, Obala 2"_s);
    cashier.Fill(Sales, u"txtIB"_s, u"4200000000042"_s);
    cashier.Fill(Sales, u"txtProdCode"_s, {});
    cashier.TakePicture(u"sales"_s);
    cashier.Answer(u"Do you want cancel the invoice?"_s, false, u"cancel"_s);
    cashier.PressAndAnswer(u"{Esc}"_s);
    cashier.Within(u"frmMSGinvoice"_s, [&cashier = cashier] { PayByTouch(cashier); });
    cashier.PressAndAnswer(u"{F5}"_s);

    ChangeCashier(cashier, u"kasir"_s);
    screens::Sell(*this, NoonOfKasir);
}

void Tour::Reprint() {
    clock.Pass(9);
    cashier.Within(u"frmTrakaRacuna"_s, Glance(u"ribbon"_s));
    cashier.PressAndAnswer(u"{F8}"_s);

    // One receipt from the list of invoices.
    cashier.Within(u"frmRacuni"_s, [this] {
        cashier.Click(u"frmRacuni"_s, u"Command1"_s);
        auto* list = cashier.List(u"frmRacuni"_s);
        drivers::ClickRow(list, list->Count() - 1);
        cashier.TakePicture(u"invoices"_s);
        cashier.Within(u"frmRacunPregled"_s, Glance(u"preview"_s));
        cashier.PressAndAnswer(u"{F6}"_s);
        cashier.Press(u"{F12}"_s);
    });
    cashier.PressAndAnswer(u"{F10}"_s);

    // The preview of all of them comes first, then the form.
    cashier.Within(u"frmRacunPregled"_s, [this] { cashier.Press(u"{F12}"_s); });
    cashier.Visit(u"mnuListRacun"_s, u"frmRacPRG"_s, [this] {
        cashier.Click(u"frmRacPRG"_s, u"cmdLast"_s);
        cashier.TakePicture(u"review"_s);
        cashier.Press(u"{F12}"_s);
    });
}

void Tour::WorkTheFiscalPrinter() {
    const auto enter = [this](const QString& number, const QString& picture, const QString& told) {
        return [=, this] {
            cashier.Press(number);
            cashier.TakePicture(picture);
            cashier.Answer(told, true);
            cashier.Press(u"{Enter}"_s);
        };
    };
    clock.Pass(4);
    cashier.Visit(u"cmdUplatadepozita"_s, u"frmDepozit"_s, enter(u"100"_s, u"deposit"_s, u"Paid deposit."_s));
    cashier.Visit(u"cmdIsplatadepozita"_s, u"frmDepozitIsplata"_s, enter(u"250"_s, u"payout"_s, u"Deposit payout."_s));
    cashier.Visit(u"cmdPeriodicniIzvjestaj"_s, u"frmFiskalniPeriodicniIzvjestaj"_s, Glance(u"fiscal-period"_s));
    cashier.Visit(u"cmdReklamiranjeRacuna"_s, u"frmReklamiranjeRacuna"_s, [this] {
        cashier.Press(u"21"_s);
        cashier.TakePicture(u"withdrawal"_s);
        cashier.Answer(u"Invoice withdraw."_s, true);
        cashier.Press(u"{Tab}{Space}"_s);
    });
}

void Tour::CloseTheShop() {
    clock.Pass(90);
    cashier.Answer(u"Do you want to make End Report?"_s, true, u"end-report-question"_s);
    cashier.Answer(u"End Report is done?"_s, true);
    cashier.Answer(u"Close the program?"_s, true, u"end-of-work"_s);
    cashier.PressAndAnswer(u"{F12}"_s);
}

}  // namespace screens
