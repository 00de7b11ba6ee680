// One register that makes an End Report, for the test that kills it:
//   period-closer FOLDER
// tells "begins" once the store is open, then closes every open period under the next number.

#include <QCoreApplication>
#include <cstdio>

#include "core/dbModule.h"
#include "output/Folder.h"
#include "reports/EndReport.h"

int main(int argc, char* argv[]) {
    if (argc != 2) return 2;
    QCoreApplication application(argc, argv);
    output::SetProgramFolder(QString::fromLocal8Bit(argv[1]));
    OpenMainStore();
    const auto number = static_cast<qint16>(LastEndReportNumber() + 1);
    std::puts("begins");
    std::fflush(stdout);
    CloseOpenPeriods(QDate(2026, 11, 24), QTime(22, 0, 5), number);
    return 0;
}
