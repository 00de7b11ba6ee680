#include "demo/WorkingDay.h"

#include <QDir>
#include <QWidget>
#include <stdexcept>

#include "cashier/Cashier.h"
#include "cashier/DayClock.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;

namespace {

const auto OpeningTime = QDateTime(QDate(2026, 11, 24), QTime(8, 0, 0));

// Pictures in the order in which they are taken.
Cashier::Camera NumberedPictures(const QString& folder) {
    if (!QDir().mkpath(folder)) throw std::runtime_error("The folder " + folder.toStdString() + " can't be made.");
    return [folder, number = 0](QWidget& window, const QString& name) mutable {
        window.grab().save(u"%1/%2-%3.png"_s.arg(folder).arg(++number, 2, 10, QChar(u'0')).arg(name));
    };
}

void OpenTheShop(Cashier& cashier) {
    cashier.Start();
    cashier.LogIn(u"voditelj"_s, u"1234"_s, u"login"_s);
    cashier.TakePicture(u"morning"_s);
    cashier.Within(u"frmDepozit"_s, [&] {
        cashier.Press(u"100"_s);
        cashier.TakePicture(u"deposit"_s);
        cashier.Answer(u"Paid deposit."_s, true);
        cashier.Press(u"{Enter}"_s);
    });
    cashier.Choose(u"cmdUplatadepozita"_s);
}

void SellInTheMorning(Cashier& cashier, DayClock& clock) {
    // Three bottles of one kind, and bread by touch.
    clock.Pass(12);
    for (int bottle = 0; bottle < 3; ++bottle) cashier.Scan(u"3850101040019"_s);
    cashier.Touch(u"Kruh crni 500 g"_s);
    cashier.TakePicture(u"first-invoice"_s);
    cashier.Post(u"20"_s);

    // Coffee is made of what lies in stock; the weighed wine asks for its quantity.
    clock.Pass(45);
    cashier.Touch(u"Kava espresso"_s);
    cashier.Touch(u"Kava espresso"_s);
    cashier.Weigh(u"3850101"_s, u"0.75"_s);
    cashier.TakePicture(u"coffee-and-wine"_s);
    cashier.Post(u"10"_s, u"change"_s);
}

void ChangeCashier(Cashier& cashier, DayClock& clock) {
    clock.Pass(120);
    cashier.Within(u"frmChangeUser"_s, [&] {
        cashier.Press(u"ana{Enter}1234"_s);
        cashier.TakePicture(u"change-of-cashier"_s);
        cashier.Press(u"{Enter}"_s);
    });
    cashier.PressAndAnswer(u"{F6}"_s);
}

void SellInTheAfternoon(Cashier& cashier, DayClock& clock) {
    // A bottle comes back.
    clock.Pass(90);
    cashier.Press(u"3850101040088{Tab}-1{Enter}"_s);
    cashier.Scan(u"3850101040156"_s);
    cashier.Post(u"5"_s);

    // Somebody leaves the queue: the invoice is cancelled and its number stays free.
    clock.Pass(20);
    cashier.Scan(u"3850101040224"_s);
    cashier.Answer(u"Do you want cancel the invoice?"_s, true);
    cashier.PressAndAnswer(u"{Esc}"_s);

    clock.Pass(30);
    cashier.Touch(u"Čaj od šipka"_s);
    cashier.Scan(u"3850101040644"_s);
    cashier.Scan(u"3850204"_s);
    cashier.TakePicture(u"afternoon"_s);
    cashier.Post(u"50"_s);
}

// The preview of all invoices comes first, then the form, from which the first one is printed again.
void Reprint(Cashier& cashier, DayClock& clock) {
    clock.Pass(15);
    cashier.Within(u"frmRacunPregled"_s, [&] {
        cashier.TakePicture(u"preview"_s);
        cashier.Press(u"{F12}"_s);
    });
    cashier.Within(u"frmRacPRG"_s, [&] {
        cashier.TakePicture(u"review"_s);
        cashier.Press(u"{F5}{F12}"_s);
    });
    cashier.Choose(u"mnuListRacun"_s);
}

void CloseTheShop(Cashier& cashier, DayClock& clock) {
    clock.Pass(60);
    cashier.Within(u"frmTrenutnoStanjeKasa"_s, [&] {
        cashier.TakePicture(u"state-registers"_s);
        cashier.Press(u"4"_s);
        cashier.TakePicture(u"state-products"_s);
        cashier.Within(u"frmRacunPregled"_s, [&] { cashier.Press(u"{F12}"_s); });
        cashier.Press(u"{F5}"_s);
        cashier.Press(u"{F12}"_s);
    });
    cashier.Choose(u"mnuTrenutnoKasa"_s);
    cashier.Answer(u"X report is done."_s, true);
    cashier.Choose(u"cmdXizvjestaj"_s);
    cashier.Answer(u"Z report - daily report is done."_s, true);
    cashier.Choose(u"cmdZizvjestaj"_s);
    cashier.Within(u"frmTrakaRacuna"_s, [&] {
        cashier.TakePicture(u"ribbon"_s);
        cashier.Press(u"{F12}"_s);
    });
    cashier.PressAndAnswer(u"{F8}"_s);
    cashier.Answer(u"Do you want to make End Report?"_s, true);
    cashier.Answer(u"End Report is done?"_s, true);
    cashier.Answer(u"Close the program?"_s, true);
    cashier.PressAndAnswer(u"{F12}"_s);
}

}  // namespace

void PlayWorkingDay(const QString& pictures) {
    values::SetUserLocale(QLocale(u"hr_HR"_s));  // the demo shop's own
    DayClock clock(OpeningTime);
    Cashier cashier(NumberedPictures(pictures));
    OpenTheShop(cashier);
    SellInTheMorning(cashier, clock);
    ChangeCashier(cashier, clock);
    SellInTheAfternoon(cashier, clock);
    Reprint(cashier, clock);
    CloseTheShop(cashier, clock);
}
