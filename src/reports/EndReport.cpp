#include "reports/EndReport.h"

#include "core/dbModule.h"

using namespace Qt::StringLiterals;

namespace {

const auto OpenPeriodsQuery =
    u"SELECT Kas, DateGenerated, TimeGenerated, TimeStoped, TotalSales, DateStoped, Closed, Payed, Grupni"
    u" FROM Sales"
    u" WHERE Closed = False"_s;

}  // namespace

void CloseOpenPeriods(QDate date, QTime time, qint16 number) {
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
