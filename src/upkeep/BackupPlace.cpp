#include "upkeep/BackupPlace.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QRegularExpression>
#include <QSysInfo>

#include "upkeep/BackupState.h"
#include "upkeep/FileCopy.h"
#include "upkeep/Words.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

constexpr auto MarkText =
    "Backups of VELTON are kept in this folder.\n"
    "Leave this file here: by it the till knows that the right disk or stick is plugged in.\n";

QString MarkOf(const QString& folder) {
    return QDir(folder).filePath(u"VELTON-backups.txt"_s);
}

QString Resolved(const QString& folder) {
    const QString real = QFileInfo(folder).canonicalFilePath();
    return real.isEmpty() ? QDir::cleanPath(folder) : real;
}

void RequireFolder(const QString& folder) {
    const QFileInfo info(folder);
    if (!info.exists())
        throw values::FileError(
            values::PathNotFound,
            Words::tr("The folder for backups, %1, is not there. Is the stick or the disk plugged in?").arg(folder));
    if (!info.isDir())
        throw values::FileError(values::PathFault, Words::tr("%1 is no folder for backups.").arg(folder));
}

void RequireRights(const QString& folder) {
    if (::access(QFile::encodeName(folder).constData(), W_OK | X_OK) == 0) return;
    const QString words = errno == EROFS ? Words::tr("The folder for backups, %1, can only be read.")
                                         : Words::tr("The folder for backups, %1, can't be written to.");
    throw values::FileError(values::PermissionDenied, words.arg(folder));
}

}  // namespace

bool IsFit(const QString& folder) {
    return QFileInfo(MarkOf(folder)).isFile();
}

void MakeFit(const QString& folder, const QString& registerFolder) {
    RequireFolder(folder);
    const QString real = Resolved(folder) + u'/';
    if (real.startsWith(Resolved(registerFolder) + u'/'))
        throw values::FileError(values::PathFault,
                                Words::tr("The backups need a folder outside of the register's own."));
    RequireRights(folder);
    if (!IsFit(folder)) WriteToDisk(MarkOf(folder), MarkText);
    SyncFolder(folder);
    NotePlace(registerFolder, folder);
}

void RequireFit(const QString& folder, const QString& registerFolder) {
    if (!HasUsedPlace(registerFolder, folder)) return MakeFit(folder, registerFolder);
    RequireFolder(folder);
    if (!IsFit(folder))
        throw values::FileError(
            values::PathNotFound,
            Words::tr("The folder %1 is not the one that was chosen for backups. Is the right stick "
                      "or disk plugged in? If it is, choose the folder anew.")
                .arg(folder));
    RequireRights(folder);
}

void ChooseBackupFolder(const QString& folder, const QString& registerFolder) {
    const QString chosen = QDir::cleanPath(QDir(folder).absolutePath());
    MakeFit(chosen, registerFolder);
    values::IniEdit ini(QDir(registerFolder).filePath(u"velton.ini"_s));
    ini.Set(u"backup"_s, u"folder"_s, chosen);
    ini.Save();
}

bool IsOnSameDisk(const QString& folder, const QString& registerFolder) {
    struct stat one = {}, other = {};
    return ::stat(QFile::encodeName(folder).constData(), &one) == 0 &&
           ::stat(QFile::encodeName(registerFolder).constData(), &other) == 0 && one.st_dev == other.st_dev;
}

QString BackupLock(const QString& registerFolder) {
    return QDir(registerFolder).filePath(u".backup.lock"_s);
}

QString RegisterName(const QString& registerFolder) {
    return QSysInfo::machineHostName() + u": "_s + Resolved(registerFolder);
}

QString OwnFolder(const QString& folder, const QString& registerFolder) {
    static const QRegularExpression others(u"[^A-Za-z0-9._-]+"_s);
    constexpr int digits = 8;
    const QString real = Resolved(registerFolder);
    const QByteArray whose = QSysInfo::machineUniqueId() + real.toUtf8();
    const QByteArray number = QCryptographicHash::hash(whose, QCryptographicHash::Sha256).toHex().first(digits);
    const QString name = QSysInfo::machineHostName() + u'-' + QFileInfo(real).fileName();
    return QDir(folder).filePath(QString(name).replace(others, u"_"_s) + u'-' + QString::fromLatin1(number));
}

}  // namespace upkeep
