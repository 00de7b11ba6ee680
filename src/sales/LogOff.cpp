#include "sales/LogOff.h"

#include "core/Session.h"
#include "core/Settings.h"
#include "core/dbModule.h"
#include "core/mdiORVA.h"
#include "forms/Form.h"
#include "forms/MsgBox.h"
#include "reports/EndReport.h"
#include "sales/SalesWords.h"
#include "sales/frmORVAtouch.h"
#include "values/Clock.h"
#include "values/DateText.h"

using namespace Qt::StringLiterals;

namespace {

const auto LoginQuery = u"SELECT * FROM Login WHERE LogInNo = '%1'"_s;

void MakeEndReport() {
    const QDateTime now = values::Now();
    const QTime time(now.time().hour(), now.time().minute(), now.time().second());
    const qint16 last = LastEndReportNumber();
    if (auto* screen = forms::FindForm(u"frmORVAtouch")) screen->Unload();
    CloseOpenPeriods(now.date(), time, last);
    forms::Tell(SalesWords::tr("End Report is done?"), forms::Icon::Warning,
                SalesWords::tr("End Report %1 %2").arg(values::DateText(now.date()), values::TimeText(time)));
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
    bool goesOn = true;
    if (TheSettings.PonudiZakljucak &&
        forms::Ask(SalesWords::tr("Do you want to make End Report?"), SalesWords::tr("End Report? YES or NO"))) {
        goesOn = false;
        forms::Run(
            [&] {
                MakeEndReport();
                goesOn = true;
            },
            title);
    }
    if (goesOn && forms::Ask(SalesWords::tr("Close the program?"), SalesWords::tr("END OF WORK"))) {
        // A row that somebody cleared away must not keep the program from ending.
        forms::Run(CompleteLogin, title, fatal);
        forms::EndProgram(forms::ProgramExitCode());
    }
    // Without its sales screen the main window could be neither used nor closed.
    if (!forms::FindForm(u"frmORVAtouch")) forms::Run(ShowSalesScreen, title, fatal);
}
