#include "upkeep/BackupState.h"

#include <QCryptographicHash>
#include <QDir>

#include "upkeep/Words.h"
#include "values/DateText.h"
#include "values/FileError.h"
#include "values/FileLock.h"
#include "values/IniFile.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

const auto Section = u"backup"_s;
const auto Folders = u"folders"_s;

QString StateFile(const QString& registerFolder) {
    return QDir(registerFolder).filePath(u"backup.state"_s);
}

values::IniFile ReadState(const QString& registerFolder) {
    try {
        return values::IniFile::Read(StateFile(registerFolder));
    } catch (const values::FileError&) {
        return {};
    }
}

// A path can't be a key as it stands.
QString KeyOf(const QString& place) {
    constexpr int digits = 12;
    return QString::fromLatin1(
        QCryptographicHash::hash(place.toUtf8(), QCryptographicHash::Sha256).toHex().first(digits));
}

// Several programs note here; what one reads and writes is one step.
void Change(const QString& registerFolder, const std::function<void(values::IniEdit&)>& change) {
    try {
        const values::FileLock turn(QDir(registerFolder).filePath(u".backup-state.lock"_s), values::FileLock::On::File,
                                    values::FileLock::When::Shortly);
        if (!turn.IsHeld()) return;
        values::IniEdit state(StateFile(registerFolder));
        change(state);
        state.Save();
    } catch (const values::Error&) {
        // Told in the header.
    }
}

QString Moment(const QDateTime& time) {
    return values::DateText(time.date()) + u' ' + values::TimeText(time.time());
}

}  // namespace

BackupState ReadBackupState(const QString& registerFolder) {
    const values::IniFile ini = ReadState(registerFolder);
    const auto text = [&ini](const QString& key) { return ini.Entry(Section, key).value_or(QString()); };
    const auto time = [&text](const QString& key) { return QDateTime::fromString(text(key), Qt::ISODate); };
    return {.good = time(u"good"_s),
            .path = text(u"path"_s),
            .bytes = text(u"bytes"_s).toLongLong(),
            .failed = time(u"failed"_s),
            .why = text(u"why"_s),
            .asked = time(u"asked"_s),
            .told = QDate::fromString(text(u"told"_s), Qt::ISODate)};
}

void NoteGood(const QString& registerFolder, const QDateTime& time, const QString& path, qint64 bytes) {
    Change(registerFolder, [&](values::IniEdit& state) {
        state.Set(Section, u"good"_s, time.toString(Qt::ISODate));
        state.Set(Section, u"path"_s, path);
        state.Set(Section, u"bytes"_s, QString::number(bytes));
        for (const QString& key : {u"asked"_s, u"failed"_s, u"why"_s}) state.Remove(Section, key);
    });
}

void NoteFailure(const QString& registerFolder, const QDateTime& time, const QString& why) {
    Change(registerFolder, [&](values::IniEdit& state) {
        state.Set(Section, u"failed"_s, time.toString(Qt::ISODate));
        state.Set(Section, u"why"_s, why);
    });
}

void NotePlace(const QString& registerFolder, const QString& place) {
    if (HasUsedPlace(registerFolder, place)) return;
    Change(registerFolder, [&](values::IniEdit& state) { state.Set(Folders, KeyOf(place), place); });
}

bool HasUsedPlace(const QString& registerFolder, const QString& place) {
    return ReadState(registerFolder).Entry(Folders, KeyOf(place)).has_value();
}

void NoteAsked(const QString& registerFolder, const QDateTime& time) {
    if (ReadBackupState(registerFolder).asked.isValid()) return;
    Change(registerFolder, [&](values::IniEdit& state) { state.Set(Section, u"asked"_s, time.toString(Qt::ISODate)); });
}

void NoteTold(const QString& registerFolder, QDate day) {
    Change(registerFolder, [&](values::IniEdit& state) { state.Set(Section, u"told"_s, day.toString(Qt::ISODate)); });
}

QString BackupNotice(const BackupState& state, const QDateTime& now, QDate lastSale) {
    constexpr int oldest = 3;  // days
    if (state.told == now.date()) return {};
    const QString lastGood = state.good.isValid() ? Words::tr("The last good backup is of %1.").arg(Moment(state.good))
                                                  : Words::tr("There is no good backup yet.");
    if (state.failed.isValid() && !(state.failed < state.good))
        return Words::tr("The backup of %1 could not be made: %2\n%3").arg(Moment(state.failed), state.why, lastGood);
    const QDateTime since = state.good.isValid() ? state.good : state.asked;
    const bool isOld = since.isValid() && since.addDays(oldest) < now && lastSale > since.date();
    if (!isOld) return {};
    return Words::tr("No backup was made for more than three days, although the shop was selling.\n%1").arg(lastGood);
}

}  // namespace upkeep
