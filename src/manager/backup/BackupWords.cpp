#include "manager/backup/BackupWords.h"

#include <QCoreApplication>
#include <QFileInfo>

#include "manager/Texts.h"
#include "output/Folder.h"
#include "upkeep/BackupState.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(manager::BackupWords)
};

}  // namespace

QString LastBackupInWords() {
    const upkeep::BackupState state = upkeep::ReadBackupState(output::ProgramFolder());
    if (!state.good.isValid()) return Words::tr("No backup yet");
    return Words::tr("Last good backup: %1, %2, in %3")
        .arg(MomentText(state.good), SizeText(state.bytes), QFileInfo(QFileInfo(state.path).path()).path());
}

}  // namespace manager
