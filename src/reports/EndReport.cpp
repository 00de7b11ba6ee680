#include "reports/EndReport.h"

#include "core/BackupStart.h"
#include "core/dbModule.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

const auto OpenPeriodsQuery =
    u"SELECT Kas, DateGenerated, TimeGenerated, TimeStoped, TotalSales, DateStoped, Closed, Payed, Grupni"
    u" FROM Sales"
    u" WHERE Closed = False"_s;

}  // namespace

qint16 NextEndReport(qint16 lastNumber) {
    return values::CInt16(lastNumber + 1);
}

void CloseOpenPeriods(QDate date, QTime time, qint16 lastNumber) {
    auto rs = MainStore().OpenRecordset(OpenPeriodsQuery);
    for (auto& period : rs) {
        period.Edit();
        period[u"DateStoped"] = date;
        period[u"TimeStoped"] = time;
        period[u"Payed"] = true;
        period[u"Closed"] = true;
        period[u"Grupni"] = NextEndReport(lastNumber);
        period.Update();
    }
    StartBackup();
}
