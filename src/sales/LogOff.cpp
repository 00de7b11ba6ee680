#include "sales/LogOff.h"

#include "core/Session.h"
#include "core/Settings.h"
#include "core/dbModule.h"
#include "core/mdiORVA.h"
#include "forms/Form.h"
#include "forms/MsgBox.h"
#include "sales/frmORVAtouch.h"
#include "values/Clock.h"
#include "values/DateText.h"

using namespace Qt::StringLiterals;

namespace {

const auto OpenPeriodsQuery =
    u"SELECT Kas, DateGenerated, TimeGenerated, TimeStoped, TotalSales, DateStoped, Closed, Payed, Grupni"
    u" FROM Sales"
    u" WHERE Closed = False"_s;
const auto LoginQuery = u"SELECT * FROM Login WHERE LogInNo = '%1'"_s;

// Closes every open period of every register under the next number.
void CloseOpenPeriods(QDate date, QTime time, int number) {
    auto rs = MainStore().OpenRecordset(OpenPeriodsQuery);
    for (auto& period : rs) {
        period.Edit();
        period[u"DateStoped"] = date;
        period[u"TimeStoped"] = time;
        period[u"Payed"] = true;
        period[u"Closed"] = true;
        period[u"Grupni"] = number;
        period.Update();
    }
}

void MakeEndReport() {
    const QDate date = values::Today();
    const QTime time = values::TimeNow();
    const qint16 last = LastEndReportNumber();
    if (auto* screen = forms::FindForm(u"frmORVAtouch")) screen->Unload();
    CloseOpenPeriods(date, time, last + 1);
    forms::Tell(u"End Report is done?"_s, forms::Icon::Warning,
                u"End Report "_s + values::DateText(date) + u" "_s + values::TimeText(time));
}

void CompleteLogin() {
    auto rs = MainStore().OpenRecordset(LoginQuery.arg(TheSession.LoginNumber));
    rs.Edit();
    rs[u"LogOut"] = values::TimeNow();
    rs[u"DateOut"] = values::Today();
    rs.Update();
}

}  // namespace

void LogOff() {
    if (TheSettings.PonudiZakljucak && forms::Ask(u"Do you want to make End Report?"_s, u"End Report? YES or NO"_s))
        MakeEndReport();
    if (forms::Ask(u"Close the program?"_s, u"END OF WORK"_s)) {
        CompleteLogin();
        forms::EndProgram();
    }
    if (!forms::FindForm(u"frmORVAtouch")) mdiORVA::Window().ShowChild(forms::Open<frmORVAtouch>());
}
