#include "upkeep/BackupList.h"

#include <QDir>
#include <algorithm>

#include "store/StoreError.h"
#include "upkeep/BackupPlace.h"
#include "upkeep/ValueText.h"
#include "upkeep/Words.h"
#include "values/FileError.h"
#include "values/IniFile.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

const auto Section = u"backup"_s;

QByteArray ContentOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw values::FileError(file, values::FileWork::Reading);
    QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError) throw values::FileError(file, values::FileWork::Reading);
    return content;
}

void TakeFacts(const values::IniFile& ini, BackupFacts& facts) {
    const auto text = [&ini](const QString& key) { return ini.Entry(Section, key).value_or(QString()); };
    facts.made = QDateTime::fromString(text(u"made"_s), Qt::ISODate);
    facts.version = text(u"version"_s);
    facts.registerName = text(u"register"_s);
    facts.bytes = text(u"bytes"_s).toLongLong();
    facts.invoices = text(u"invoices"_s).toLongLong();
    facts.lastDay.day = QDate::fromString(text(u"lastday"_s), Qt::ISODate);
    const values::Value takings = ReadValue(text(u"lasttakings"_s).toUtf8(), store::Type::Money);
    if (!takings.IsNull()) facts.lastDay.takings = takings.ToMoney();
}

QString FaultOf(const BackupFacts& facts) {
    if (!facts.made.isValid()) return Words::tr("It does not say when it was made.");
    const QDir folder(QDir(facts.path).filePath(backup::Register));
    const backup::FileList files = backup::ReadFileList(facts.path);
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        const QFileInfo there(folder.filePath(file.key()));
        if (!there.isFile()) return Words::tr("%1 is missing in it.").arg(file.key());
        if (there.size() != file->bytes) return Words::tr("%1 in it is not whole.").arg(file.key());
    }
    return {};
}

}  // namespace

namespace backup {

QByteArray WriteFileList(const FileList& files) {
    QByteArrayList lines;
    for (auto file = files.cbegin(); file != files.cend(); ++file)
        lines += QByteArray::number(file->bytes) + '\t' + file->sha256 + '\t' + WriteText(file.key()) + '\n';
    std::ranges::sort(lines, {}, [](const QByteArray& line) { return line.mid(line.lastIndexOf('\t')); });
    return lines.join();
}

FileList ReadFileList(const QString& path) {
    FileList files;
    for (const QByteArray& line : ContentOf(QDir(path).filePath(Files)).split('\n')) {
        if (line.isEmpty()) continue;
        const QByteArrayList cells = line.split('\t');
        if (cells.size() != 3) throw store::StoreError(store::NotAStore, Words::tr("Its list of files can't be read."));
        files[ReadValue(cells[2], store::Type::Text).TextOrEmpty()] = {cells[0].toLongLong(), cells[1]};
    }
    return files;
}

QByteArray WriteFacts(const BackupFacts& facts) {
    const QString last = facts.lastDay.day.isValid() ? facts.lastDay.day.toString(Qt::ISODate) : QString();
    QString text = u"[backup]\n"_s;
    for (const auto& [key, value] : std::initializer_list<std::pair<QString, QString>>{
             {u"made"_s, facts.made.toOffsetFromUtc(facts.made.offsetFromUtc()).toString(Qt::ISODate)},
             {u"version"_s, facts.version},
             {u"register"_s, facts.registerName},
             {u"bytes"_s, QString::number(facts.bytes)},
             {u"invoices"_s, QString::number(facts.invoices)},
             {u"lastday"_s, last},
             {u"lasttakings"_s, QString::fromLatin1(WriteValue(facts.lastDay.takings))}})
        text += key + u'=' + value + u'\n';
    return text.toUtf8();
}

}  // namespace backup

BackupFacts ReadBackup(const QString& path, const QString& registerFolder) {
    BackupFacts facts;
    facts.path = QDir::cleanPath(path);
    try {
        if (!QFileInfo(QDir(path).filePath(backup::Facts)).isFile())
            throw values::FileError(values::FileMissing, Words::tr("%1 is no backup of a register.").arg(path));
        TakeFacts(values::IniFile::Read(QDir(path).filePath(backup::Facts)), facts);
        facts.isOwn = facts.registerName == RegisterName(registerFolder);
        facts.fault = FaultOf(facts);
    } catch (const values::Error& error) {
        facts.fault = error.Description();
    }
    return facts;
}

QList<BackupFacts> ListBackups(const QString& folder, const QString& registerFolder, const Progress& progress) {
    QList<BackupFacts> backups;
    const QDir registers(folder);
    for (const QString& owner : registers.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QDir own(registers.filePath(owner));
        for (const QString& name : own.entryList({backup::Prefix + u"*"_s}, QDir::Dirs)) {
            if (name.endsWith(backup::Unfinished)) continue;
            GoOn(progress, Words::tr("Reading %1").arg(name));
            backups += ReadBackup(own.filePath(name), registerFolder);
        }
    }
    std::ranges::stable_sort(backups, std::greater(), &BackupFacts::made);
    return backups;
}

DayTotals DaysOf(const BackupFacts& backup) {
    return ParseDayTotals(ContentOf(QDir(backup.path).filePath(backup::Days)));
}

}  // namespace upkeep
