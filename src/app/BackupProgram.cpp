#include "app/BackupProgram.h"

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QProcess>
#include <csignal>
#include <cstdio>

#include "upkeep/Backup.h"
#include "values/Error.h"

using namespace Qt::StringLiterals;

namespace {

const auto Call = u"--backup"_s;

// Of processor and disk only what nobody else wants.
void StandBack() {
    constexpr int lowest = 19, thisProcess = 1, idleClass = 3, classShift = 13;
    ::setpriority(PRIO_PROCESS, 0, lowest);
    ::syscall(SYS_ioprio_set, thisProcess, 0, idleClass << classShift);
}

}  // namespace

bool IsBackupCall(int argc, char* argv[]) {
    return argc > 1 && Call == QLatin1StringView(argv[1]);
}

int MakeBackupByItself(int argc, char* argv[]) {
    ::umask(077);  // a shop's files belong to its user alone
    for (const int number : {SIGPIPE, SIGXFSZ, SIGHUP}) std::signal(number, SIG_IGN);
    StandBack();
    const QCoreApplication application(argc, argv);
    const QString folder = argc > 2 ? QString::fromLocal8Bit(argv[2]) : QCoreApplication::applicationDirPath();
    try {
        const upkeep::BackupPlan plan = upkeep::ReadBackupPlan(folder);
        if (!plan.folder.isEmpty()) upkeep::MakeBackup(folder, plan);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "velton: %s\n", error.what());
        return 1;
    }
}

bool StartBackupProgram(const QString& registerFolder) {
    QProcess process;
    // Under its own name: a newer one may lie there by now.
    process.setProgram(QCoreApplication::applicationDirPath() + u"/velton"_s);
    process.setArguments({Call, registerFolder});
    process.setWorkingDirectory(registerFolder);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}
