#include "manager/BackupWords.h"

#include <QCoreApplication>
#include <QFileInfo>

#include "output/Folder.h"
#include "upkeep/BackupState.h"
#include "values/DateText.h"
#include "values/Format.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(manager::BackupWords)
};

}  // namespace

QString MomentInWords(const QDateTime& time) {
    return values::DateText(time.date()) + u' ' + values::TimeText(time.time());
}

QString SizeInWords(qint64 bytes) {
    return values::UserLocale().formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
}

QString AmountInWords(values::Money amount) {
    return values::Format(amount, u"###,###,##0.00");
}

QString LastBackupInWords() {
    const upkeep::BackupState state = upkeep::ReadBackupState(output::ProgramFolder());
    if (!state.good.isValid()) return Words::tr("No backup yet");
    return Words::tr("Last good backup: %1, %2, in %3")
        .arg(MomentInWords(state.good), SizeInWords(state.bytes), QFileInfo(QFileInfo(state.path).path()).path());
}

}  // namespace manager
