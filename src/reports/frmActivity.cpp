#include "reports/frmActivity.h"

#include "core/Session.h"
#include "core/dbModule.h"
#include "forms/MsgBox.h"

using namespace Qt::StringLiterals;

namespace {

const auto ClearLog = u"DELETE * FROM Login WHERE LogInNo <> '%1'"_s;
const auto LoginQuery = u"SELECT * FROM Login WHERE LogInNo = '%1'"_s;

const ReportFacts Facts{
    .name = u"frmActivity"_s,
    .caption = u"Business hours of cash register"_s,
    .variants = {{.head = u"SELECT Kas, LoginNo, Date, LoginTime, DateOut, LogOut FROM Login"_s, .group = {}}},
    .days = {.day = u"  WHERE Date = #"_s, .from = u"  WHERE Date >= #"_s, .to = u"# AND Date <= #"_s},
    .columns = {{u"CR"_s, 60, Look::Text, u"Kas"_s},
                {u"DateFrom"_s, 120, Look::Text, u"Date"_s},
                {u"DateTo"_s, 120, Look::Text, u"DateOut"_s},
                {u"Time login"_s, 120, Look::Text, u"LoginTime"_s},
                {u"Time logoff"_s, -1, Look::Text, u"LogOut"_s}},
    .layouts = {{.title = {u"Business hours of cash register"_s},
                 .head = {u"CR  DateFrom  DateTo  TimeFrom    TimeTo"_s},
                 .item = {{Left(4, 0), Right(8, 1, u"dd.mm.yy"_s), Left(8, 2, u"dd.mm.yy"_s), Right(10, 3),
                           Right(9, 4)}}}},
    .emptyList = u"List haven't any item.Change date."_s,
};

}  // namespace

frmActivity::frmActivity() : PeriodReport(Facts) {
    PrintAndSave();
    auto* clear = AddButton(u"cmdBrisi"_s, u"F6-Delete"_s, Qt::Key_F6, &frmActivity::cmdBrisi_Click);
    clear->setToolTip(u"Delete all list"_s);
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
            if (error.Number() == store::RelatedRows) return forms::Inform(u"Log can't be deleted."_s, Caption());
            forms::Inform(forms::ErrorText(error), Caption());
        }
    }
}
