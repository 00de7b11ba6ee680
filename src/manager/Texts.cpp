#include "manager/Texts.h"

#include <QCoreApplication>
#include <QFileInfo>

#include "values/DateText.h"
#include "values/Format.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(manager::Texts)
};

}  // namespace

QString MomentText(const QDateTime& moment) {
    return values::DateText(moment.date()) + u"  "_s + moment.time().toString(u"HH:mm"_s);
}

QString AmountText(values::Money amount) {
    return values::Format(amount, u"###,###,##0.00");
}

QString SizeText(qint64 bytes) {
    return values::UserLocale().formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
}

QString LastBackupText(const upkeep::BackupState& state) {
    if (!state.good.isValid()) return Words::tr("No backup yet");
    return Words::tr("Last good backup: %1, %2, in %3")
        .arg(MomentText(state.good), SizeText(state.bytes), QFileInfo(QFileInfo(state.path).path()).path());
}

}  // namespace manager
