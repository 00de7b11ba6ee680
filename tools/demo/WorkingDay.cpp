#include "demo/WorkingDay.h"

#include "demo/Cashier.h"
#include "values/Clock.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;

namespace {

const auto OpeningTime = QDateTime(QDate(2026, 11, 24), QTime(8, 0, 0));

// The day has a clock of its own, so that it reads the same whenever it is played.
class DayClock {
public:
    DayClock() {
        values::SetClock([this] { return now_; });
    }
    ~DayClock() { values::SetClock({}); }
    DayClock(const DayClock&) = delete;
    DayClock& operator=(const DayClock&) = delete;
    void Pass(int minutes) { now_ = now_.addSecs(60 * minutes + 7); }

private:
    QDateTime now_ = OpeningTime;
};

}  // namespace

void PlayWorkingDay(const QString& pictures) {
    values::SetUserLocale(QLocale(u"hr_HR"_s));  // the demo shop's own
    DayClock clock;
    Cashier cashier(pictures);
    cashier.Start();
    cashier.LogIn(u"ana"_s, u"1234"_s);
    cashier.TakePicture(u"morning"_s);

    // The first customer: three bottles of one kind, and bread by touch.
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
    cashier.Post(u"10"_s);

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

    clock.Pass(200);
    cashier.Touch(u"Čaj od šipka"_s);
    cashier.Scan(u"3850101040644"_s);
    cashier.Scan(u"3850204"_s);
    cashier.TakePicture(u"afternoon"_s);
    cashier.Post(u"50"_s);

    clock.Pass(120);
    cashier.Answer(u"Do you want to make End Report?"_s, true);
    cashier.Answer(u"End Report is done?"_s, true);
    cashier.Answer(u"Close the program?"_s, true);
    cashier.PressAndAnswer(u"{F12}"_s);
}
