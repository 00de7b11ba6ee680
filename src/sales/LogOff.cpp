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
#include "values/Numbers.h"

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
    const QDateTime now = values::Now();
    const QTime time(now.time().hour(), now.time().minute(), now.time().second());
    const qint16 number = values::CInt16(LastEndReportNumber() + 1);
    if (auto* screen = forms::FindForm(u"frmORVAtouch")) screen->Unload();
    CloseOpenPeriods(now.date(), time, number);
    forms::Tell(u"End Report is done?"_s, forms::Icon::Warning,
                u"End Report "_s + values::DateText(now.date()) + u" "_s + values::TimeText(time));
}

void CompleteLogin() {
    auto rs = MainStore().OpenRecordset(LoginQuery.arg(TheSession.LoginNumber));
    rs.Edit();
    rs[u"LogOut"] = values::TimeNow();
    rs[u"DateOut"] = values::Today();
    rs.Update();
}

void ShowSalesScreen() {
    mdiORVA::Window().ShowChild(forms::Open<frmORVAtouch>());
}

}  // namespace

void LogOff() {
    const QString title = mdiORVA::Window().Caption();
    constexpr bool fatal = true;
    if (TheSettings.PonudiZakljucak && forms::Ask(u"Do you want to make End Report?"_s, u"End Report? YES or NO"_s))
        forms::Run(MakeEndReport, title);
    if (forms::Ask(u"Close the program?"_s, u"END OF WORK"_s)) {
        // A row that somebody cleared away must not keep the program from ending.
        forms::Run(CompleteLogin, title, fatal);
        forms::EndProgram(forms::ProgramExitCode());
    }
    // Without its sales screen the main window could be neither used nor closed.
    if (!forms::FindForm(u"frmORVAtouch")) forms::Run(ShowSalesScreen, title, fatal);
}
