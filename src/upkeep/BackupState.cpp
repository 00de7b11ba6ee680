#include "upkeep/BackupState.h"

#include <QDir>

#include "upkeep/Words.h"
#include "values/FileError.h"
#include "values/IniEdit.h"
#include "values/IniFile.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

constexpr int LongestWithout = 3;  // days

const auto Section = u"backup"_s;

QString StateFile(const QString& registerFolder) {
    return QDir(registerFolder).filePath(u"backup.state"_s);
}

}  // namespace

BackupState ReadBackupState(const QString& registerFolder) {
    try {
        const values::IniFile ini = values::IniFile::Read(StateFile(registerFolder));
        const auto entry = [&ini](const QString& key) { return ini.Entry(Section, key).value_or(QString()); };
        return {.good = QDateTime::fromString(entry(u"good"_s), Qt::ISODate),
                .path = entry(u"path"_s),
                .bytes = entry(u"bytes"_s).toLongLong(),
                .failed = QDateTime::fromString(entry(u"failed"_s), Qt::ISODate),
                .why = entry(u"why"_s),
                .told = QDate::fromString(entry(u"told"_s), Qt::ISODate)};
    } catch (const values::FileError&) {
        return {};
    }
}

void WriteBackupState(const QString& registerFolder, const BackupState& state) {
    values::IniEdit ini(StateFile(registerFolder));
    ini.Set(Section, u"good"_s, state.good.toString(Qt::ISODate));
    ini.Set(Section, u"path"_s, state.path);
    ini.Set(Section, u"bytes"_s, QString::number(state.bytes));
    ini.Set(Section, u"failed"_s, state.failed.toString(Qt::ISODate));
    ini.Set(Section, u"why"_s, state.why);
    ini.Set(Section, u"told"_s, state.told.toString(Qt::ISODate));
    ini.Save();
}

QString BackupTrouble(const BackupState& state, const QDateTime& now) {
    if (!state.why.isEmpty()) return Words::tr("The last backup failed. %1").arg(state.why);
    if (state.good.isValid() && state.good.daysTo(now) > LongestWithout)
        return Words::tr("The last backup is of %1.").arg(state.good.date().toString(u"yyyy-MM-dd"_s));
    return {};
}

}  // namespace upkeep
