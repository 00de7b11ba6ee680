#include "app/Backups.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "core/BackupBeside.h"
#include "core/Installation.h"
#include "core/Session.h"
#include "core/dbModule.h"
#include "forms/MsgBox.h"
#include "output/Folder.h"
#include "upkeep/BackupState.h"
#include "upkeep/RegisterBackup.h"
#include "values/Clock.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

const auto UserQuery = u"SELECT AccLevel FROM Users WHERE UserID = '%1'"_s;

constexpr int OwnersLevel = 3;
constexpr int Politeness = 10;  // so that sales come first

bool IsOwner() {
    auto user = MainStore().OpenRecordset(UserQuery.arg(TheSession.SessionUserID));
    return !user.AtEOF() && values::Val(user[0].TextOrEmpty()) >= OwnersLevel;
}

void TellOwner(upkeep::BackupState state) {
    const QString trouble = upkeep::BackupTrouble(state, values::Now());
    if (trouble.isEmpty() || state.told == values::Today() || !IsOwner()) return;
    state.told = values::Today();
    upkeep::WriteBackupState(output::ProgramFolder(), state);
    forms::Inform(trouble, u"VELTON"_s);
}

}  // namespace

void LookAfterBackups() {
    if (TheInstallation.backupFolder.isEmpty()) return;
    const upkeep::BackupState state = upkeep::ReadBackupState(output::ProgramFolder());
    TellOwner(state);
    if (!state.good.isValid() || state.good.date() < values::Today()) BackUpBeside();
}

int MakeBackup() {
    ::umask(077);
    errno = 0;
    if (::nice(Politeness) < 0 && errno != 0) std::fprintf(stderr, "The backup is made without being polite.\n");
    try {
        const upkeep::BackupPlan plan = upkeep::ReadBackupPlan(output::ProgramFolder());
        upkeep::BackUpRegister(output::ProgramFolder(), plan.place, plan.kept);
        return 0;
    } catch (const values::Error& error) {
        std::fprintf(stderr, "%d: %s\n", error.Number(), qPrintable(error.Description()));
        return 1;
    }
}
