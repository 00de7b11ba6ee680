#include "reports/frmActivity.h"

#include "core/Session.h"
#include "core/dbModule.h"
#include "forms/MsgBox.h"

using namespace Qt::StringLiterals;
using values::Paper;

namespace {

const auto ClearLog = u"DELETE * FROM Login WHERE LogInNo <> '%1'"_s;
const auto LoginQuery = u"SELECT * FROM Login WHERE LogInNo = '%1'"_s;

ReportFacts Facts() {
    return {
        .name = u"frmActivity"_s,
        .caption = frmActivity::tr("Business hours of cash register"),
        .variants = {{.head = u"SELECT Kas, LoginNo, Date, LoginTime, DateOut, LogOut FROM Login"_s, .group = {}}},
        .days = {.day = u"  WHERE Date = #"_s, .from = u"  WHERE Date >= #"_s, .to = u"# AND Date <= #"_s},
        .columns = {{frmActivity::tr("CR"), 60, Look::Text, u"Kas"_s},
                    {frmActivity::tr("DateFrom"), 120, Look::Text, u"Date"_s},
                    {frmActivity::tr("DateTo"), 120, Look::Text, u"DateOut"_s},
                    {frmActivity::tr("Time login"), 120, Look::Text, u"LoginTime"_s},
                    {frmActivity::tr("Time logoff"), -1, Look::Text, u"LogOut"_s}},
        .layouts = {{//: at most 40 columns
                     .title = {Paper::tr("Business hours of cash register")},
                     //: 40 columns: register 4, the days of login and log-off 8 each, their times 10 and 9
                     .head = {Paper::tr("CR  DateFrom  DateTo  TimeFrom    TimeTo")},
                     .item = {{Left(4, 0), Right(8, 1, u"dd.mm.yy"_s), Left(8, 2, u"dd.mm.yy"_s), Right(10, 3),
                               Right(9, 4)}}}},
        .emptyList = frmActivity::tr("List haven't any item.Change date."),
    };
}

}  // namespace

frmActivity::frmActivity() : PeriodReport(Facts()) {
    PrintAndSave();
    auto* clear = AddButton(u"cmdBrisi"_s, tr("F6-Delete"), Qt::Key_F6, &frmActivity::cmdBrisi_Click);
    clear->setToolTip(tr("Delete all list"));
    clear->setProperty("role", u"danger"_s);
}

// The whole log goes, whatever days are shown; the login of this run stays, and takes the number 0, so that the next
// one is number 1. A step that fails is told, and the next one done.
void frmActivity::cmdBrisi_Click() {
    if (ui.lv1->Count() == 0) return;
    const QString number = TheSession.LoginNumber;
    store::Recordset login;
    const std::function<void()> steps[] = {
        [&] { ExecuteSql(ClearLog.arg(number)); },
        [&] { login = MainStore().OpenRecordset(LoginQuery.arg(number)); },
        [&] { login.Edit(); },
        [&] { login[u"LogInNo"] = u"0"_s; },
        [&] { TheSession.LoginNumber = u"0"_s; },
        [&] { login.Update(); },
        [&] { ui.lv1->Clear(); },
    };
    for (const auto& step : steps) {
        try {
            step();
        } catch (const values::Error& error) {
            if (error.Number() == store::RelatedRows) return forms::Inform(tr("Log can't be deleted."), Caption());
            forms::Inform(forms::ErrorText(error), Caption());
        }
    }
}
