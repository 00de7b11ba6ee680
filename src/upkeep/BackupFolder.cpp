#include "upkeep/BackupFolder.h"

#include <QDir>
#include <QSet>
#include <QSysInfo>
#include <algorithm>

#include "upkeep/Words.h"
#include "values/FileError.h"
#include "values/IniEdit.h"
#include "values/IniFile.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

const auto SignName = u"VELTON backups.txt"_s;
const auto FactsName = u"backup.ini"_s;
const auto Facts = u"backup"_s;  // the section, here and in velton.ini
const auto NameForm = u"'velton-'yyyyMMdd-HHmmss"_s;

// Letters, digits and a dash, so that every file system takes it.
QString Plain(QString name) {
    for (QChar& sign : name)
        if (!sign.isLetterOrNumber()) sign = u'-';
    return name;
}

template <typename Key>
void KeepNewestOfEach(const std::vector<QDateTime>& made, int count, const Key& keyOf, QSet<QDateTime>& kept) {
    QStringList seen;
    for (const QDateTime& moment : made) {
        const QString key = keyOf(moment.date());
        if (seen.contains(key)) continue;
        if (seen.size() >= count) return;
        seen << key;
        kept << moment;
    }
}

}  // namespace

BackupPlan ReadBackupPlan(const QString& registerFolder) {
    const values::IniFile ini = values::IniFile::Read(QDir(registerFolder).filePath(u"velton.ini"_s));
    const auto count = [&ini](const QString& key, int usual) {
        bool isNumber = false;
        const int said = ini.Entry(Facts, key).value_or(QString()).toInt(&isNumber);
        return isNumber ? said : usual;
    };
    const Kept usual;
    return {.place = ini.Entry(Facts, u"folder"_s).value_or(QString()),
            .kept = {.days = count(u"days"_s, usual.days),
                     .weeks = count(u"weeks"_s, usual.weeks),
                     .months = count(u"months"_s, usual.months)}};
}

void TakeAsPlace(const QString& place) {
    if (!QDir().mkpath(place))
        throw values::FileError(values::PathFault, Words::tr("The folder %1 can't be made.").arg(place));
    QFile sign(QDir(place).filePath(SignName));
    if (sign.exists()) return;
    const QByteArray words = "VELTON keeps the backups of its registers in this folder.\n";
    if (!sign.open(QIODevice::WriteOnly) || sign.write(words) != words.size() || !sign.flush())
        throw values::FileError(sign, u"write '%1'"_s.arg(sign.fileName()));
}

void RequirePlace(const QString& place) {
    if (!QFileInfo::exists(QDir(place).filePath(SignName)))
        throw values::FileError(
            values::PathNotFound,
            Words::tr("The folder for backups, %1, is not there. Is the stick plugged in, the disk or the share there?")
                .arg(place));
    if (!QFileInfo(place).isWritable())
        throw values::FileError(values::PermissionDenied,
                                Words::tr("Nothing can be written into the folder for backups, %1.").arg(place));
}

QString FolderOfRegister(const QString& place, const QString& registerFolder) {
    const QString folder = QDir(registerFolder).absolutePath();
    return QDir(place).filePath(Plain(QSysInfo::machineHostName()) + u'-' + Plain(QFileInfo(folder).fileName()));
}

QString NameOf(const QDateTime& made) {
    return made.toString(NameForm);
}

std::vector<Backup> BackupsIn(const QString& folderOfRegister) {
    std::vector<Backup> backups;
    const QDir folder(folderOfRegister);
    for (const QString& name : folder.entryList({u"velton-*"_s}, QDir::Dirs, QDir::Name | QDir::Reversed)) {
        if (!QDateTime::fromString(name, NameForm).isValid()) continue;
        if (QFileInfo::exists(folder.filePath(name + u'/' + FactsName)))
            backups.push_back(ReadFacts(folder.filePath(name)));
    }
    return backups;
}

std::vector<QDateTime> Outdated(std::vector<QDateTime> made, const Kept& kept) {
    std::ranges::sort(made, std::greater());
    QSet<QDateTime> stay;
    if (!made.empty()) stay << made.front();
    KeepNewestOfEach(
        made, kept.days, [](QDate day) { return day.toString(Qt::ISODate); }, stay);
    KeepNewestOfEach(
        made, kept.weeks,
        [](QDate day) {
            int year = 0;
            const int week = day.weekNumber(&year);
            return u"%1 %2"_s.arg(year).arg(week);
        },
        stay);
    KeepNewestOfEach(
        made, kept.months, [](QDate day) { return day.toString(u"yyyy-MM"_s); }, stay);
    std::erase_if(made, [&stay](const QDateTime& moment) { return stay.contains(moment); });
    return made;
}

Backup ReadFacts(const QString& backup) {
    const values::IniFile ini = values::IniFile::Read(QDir(backup).filePath(FactsName));
    const auto entry = [&ini](const QString& key) { return ini.Entry(Facts, key).value_or(QString()); };
    return {.path = backup,
            .made = QDateTime::fromString(entry(u"made"_s), Qt::ISODate),
            .version = entry(u"version"_s),
            .bytes = entry(u"bytes"_s).toLongLong(),
            .days = entry(u"days"_s).toInt(),
            .invoices = entry(u"invoices"_s).toInt(),
            .lastDay = QDate::fromString(entry(u"lastday"_s), Qt::ISODate),
            .lastTakings = values::Money::FromUnits(entry(u"lasttakings"_s).toLongLong())};
}

void WriteFacts(const QString& folder, const Backup& facts) {
    values::IniEdit ini(QDir(folder).filePath(FactsName));
    const std::pair<QString, QString> entries[] = {{u"made"_s, facts.made.toString(Qt::ISODate)},
                                                   {u"version"_s, facts.version},
                                                   {u"bytes"_s, QString::number(facts.bytes)},
                                                   {u"days"_s, QString::number(facts.days)},
                                                   {u"invoices"_s, QString::number(facts.invoices)},
                                                   {u"lastday"_s, facts.lastDay.toString(Qt::ISODate)},
                                                   {u"lasttakings"_s, QString::number(facts.lastTakings.Units())}};
    for (const auto& [key, value] : entries) ini.Set(Facts, key, value);
    ini.Save();
}

}  // namespace upkeep
