#include "upkeep/RegisterBackup.h"

#include <fcntl.h>
#include <unistd.h>

#include <QDir>
#include <QDirIterator>
#include <QLockFile>
#include <QStorageInfo>
#include <cerrno>

#include "store/StorePath.h"
#include "upkeep/BackupState.h"
#include "upkeep/DayTotals.h"
#include "upkeep/DrawerCount.h"
#include "upkeep/Words.h"
#include "values/Clock.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

const auto PartEnding = u".part"_s;
constexpr qint64 RoomToSpare = qint64{16} << 20;

void Go(const Progress& progress, const QString& doing) {
    if (progress && !progress(doing)) throw store::StoreError(store::Cancelled, Words::tr("The backup was left."));
}

void Sync(const QString& path) {
    const int descriptor = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    const bool isOnDisk = descriptor >= 0 && fsync(descriptor) == 0;
    const int why = errno;
    if (descriptor >= 0) close(descriptor);
    if (!isOnDisk && why != EINVAL)
        throw values::FileError(values::NumberOfOsError(why), Words::tr("%1 can't be brought to the disk.").arg(path));
}

// A file that is as it was in the backup before takes no room of its own where the file system can share it.
void CopyOrShare(const QString& from, const QString& to, const QString& before) {
    QFile source(from);
    const QFileInfo now(from), then(before);
    const bool isTheSame = then.isFile() && then.size() == now.size() && then.lastModified() == now.lastModified();
    if (isTheSame && link(QFile::encodeName(before).constData(), QFile::encodeName(to).constData()) == 0) return;
    if (!source.copy(to)) throw values::FileError(source, u"copy '%1'"_s.arg(from));
    QFile copy(to);
    if (!copy.open(QIODevice::ReadWrite)) throw values::FileError(copy, u"write '%1'"_s.arg(to));
    copy.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    copy.setFileTime(now.lastModified(), QFileDevice::FileModificationTime);
    copy.close();
    Sync(to);
}

std::unique_ptr<store::Database> OpenMain(const QString& folder) {
    return store::Database::Open(store::MainPlace(folder), store::MainSchema());
}

std::unique_ptr<store::Database> OpenOptions(const QString& folder) {
    return store::Database::Open(store::OptionsPlace(folder), store::OptionsSchema());
}

// The register's files beside its stores, by their paths below its folder.
QStringList FilesOf(const QString& registerFolder, store::Database& options) {
    const QDir folder(registerFolder);
    QStringList files;
    for (const QString& ini : {u"ports.ini"_s, u"velton.ini"_s, u"store.ini"_s})
        if (folder.exists(ini)) files << ini;
    for (QDirIterator pictures(folder.filePath(u"img"_s), QDir::Files, QDirIterator::Subdirectories);
         pictures.hasNext();)
        files << folder.relativeFilePath(pictures.next());
    auto row = options.OpenRecordset(u"SELECT TrakaRacunaFile FROM Options"_s);
    const QString ribbon = row.AtEOF() ? QString() : row[0].TextOrEmpty();
    if (!ribbon.isEmpty() && QFileInfo(folder.filePath(ribbon)).isFile() && !ribbon.contains(u'/')) files << ribbon;
    return files;
}

qint64 SizeOf(const QString& folder) {
    qint64 bytes = 0;
    for (QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories); files.hasNext();)
        bytes += QFileInfo(files.next()).size();
    return bytes;
}

// Of all days before this one, on which nobody can sell any more.
std::vector<DayTotal> Before(std::vector<DayTotal> days, QDate today) {
    std::erase_if(days, [today](const DayTotal& total) { return !total.day.isValid() || total.day >= today; });
    return days;
}

// One being made at work in a folder beside its place.
class Making {
public:
    Making(const QString& registerFolder, const QString& place, const Progress& progress)
        : register_(QDir(registerFolder).absolutePath()),
          folder_(QDir(FolderOfRegister(place, registerFolder)).absolutePath()),
          made_(values::Now()),
          part_(folder_.filePath(NameOf(made_) + PartEnding)),
          progress_(progress) {
        if (!QDir().mkpath(folder_.path()))
            throw values::FileError(values::PathFault, Words::tr("The folder %1 can't be made.").arg(folder_.path()));
        for (const QString& left : folder_.entryList({u"velton-*"_s + PartEnding}, QDir::Dirs))
            QDir(folder_.filePath(left)).removeRecursively();
        if (folder_.exists(NameOf(made_)) || !QDir().mkdir(part_.path()))
            throw values::FileError(values::PathFault, Words::tr("The folder %1 can't be made.").arg(part_.path()));
    }
    ~Making() {
        if (!isDone_) part_.removeRecursively();
    }

    Backup Make() {
        const auto main = OpenMain(register_.path());
        const auto options = OpenOptions(register_.path());
        const QStringList files = FilesOf(register_.path(), *options);
        RequireRoom(files);
        Go(progress_, Words::tr("The main store is copied."));
        main->BackupTo(part_.filePath(store::MainFile));
        options->BackupTo(part_.filePath(store::OptionsFile));
        if (register_.exists(ManagerFile)) OpenManagerStore(register_.path())->BackupTo(part_.filePath(ManagerFile));
        const std::vector<Backup> earlier = BackupsIn(folder_.path());
        for (const QString& file : files) {
            Go(progress_, Words::tr("%1 is copied.").arg(file));
            if (!QDir().mkpath(QFileInfo(part_.filePath(file)).path()))
                throw values::FileError(values::PathFault, Words::tr("The folder of %1 can't be made.").arg(file));
            CopyOrShare(register_.filePath(file), part_.filePath(file),
                        earlier.empty() ? QString() : QDir(earlier.front().path).filePath(file));
        }
        Go(progress_, Words::tr("The copy is compared with the store."));
        Backup backup = Compared(*main);
        WriteFacts(part_.path(), backup);
        Sync(part_.path());
        if (!QDir().rename(part_.path(), backup.path))
            throw values::FileError(values::PathFault, Words::tr("%1 can't be put in its place.").arg(backup.path));
        isDone_ = true;
        Sync(folder_.path());
        return backup;
    }

private:
    void RequireRoom(const QStringList& files) const {
        qint64 needed = RoomToSpare;
        for (const QString& file : files + QStringList{store::MainFile, store::OptionsFile, ManagerFile})
            needed += QFileInfo(register_.filePath(file)).size();
        const qint64 there = QStorageInfo(folder_.path()).bytesAvailable();
        if (there >= 0 && there < needed)
            throw values::FileError(
                values::DiskFull,
                Words::tr("There is no room for a backup in %1: %2 MB are free, %3 MB are needed.")
                    .arg(folder_.path(), QString::number(there >> 20), QString::number(needed >> 20)));
    }

    Backup Compared(store::Database& main) const {
        const auto copy = store::Database::Open(part_.filePath(store::MainFile), store::MainSchema());
        const std::vector<DayTotal> days = DayTotalsOf(*copy);
        const QDate today = made_.date();
        if (Before(days, today) != Before(DayTotalsOf(main), today))
            throw store::StoreError(store::NotAStore,
                                    Words::tr("The copy does not have the sales that the store has."));
        Backup backup{.path = folder_.filePath(NameOf(made_)),
                      .made = made_,
                      .version = QStringLiteral(VELTON_VERSION),
                      .bytes = SizeOf(part_.path()),
                      .days = static_cast<int>(days.size())};
        for (const DayTotal& day : days) {
            backup.invoices += day.invoices;
            if (!day.day.isValid() || day.day < backup.lastDay) continue;
            backup.lastDay = day.day;
            backup.lastTakings = day.takings;
        }
        return backup;
    }

    const QDir register_;
    const QDir folder_;
    const QDateTime made_;
    QDir part_;
    const Progress& progress_;
    bool isDone_ = false;
};

void ClearAway(const QString& folderOfRegister, const Kept& kept) {
    std::vector<QDateTime> made;
    for (const Backup& backup : BackupsIn(folderOfRegister)) made.push_back(backup.made);
    for (const QDateTime& moment : Outdated(std::move(made), kept)) {
        // Out of sight first: half of a backup is none.
        const QString path = QDir(folderOfRegister).filePath(NameOf(moment));
        if (QDir().rename(path, path + PartEnding)) QDir(path + PartEnding).removeRecursively();
    }
}

}  // namespace

Backup BackUpRegister(const QString& registerFolder, const QString& place, const Kept& kept, const Progress& progress) {
    QLockFile lock(QDir(registerFolder).filePath(u"backup.lock"_s));
    lock.setStaleLockTime(0);
    if (!lock.tryLock()) throw store::StoreError(store::StoreLocked, Words::tr("A backup is being made already."));
    BackupState state = ReadBackupState(registerFolder);
    try {
        RequirePlace(place);
        const Backup backup = Making(registerFolder, place, progress).Make();
        state.good = backup.made;
        state.path = backup.path;
        state.bytes = backup.bytes;
        state.why.clear();
        WriteBackupState(registerFolder, state);
        ClearAway(QFileInfo(backup.path).path(), kept);
        return backup;
    } catch (const values::Error& error) {
        if (error.Number() == store::Cancelled) throw;
        state.failed = values::Now();
        state.why = error.Description();
        try {
            WriteBackupState(registerFolder, state);
        } catch (const values::FileError&) {
            // What failed first is what is told.
        }
        throw;
    }
}

}  // namespace upkeep
