#include "upkeep/Backup.h"

#include <QDir>
#include <QDirIterator>

#include "store/StorePath.h"
#include "upkeep/BackupPlace.h"
#include "upkeep/BackupPruning.h"
#include "upkeep/BackupState.h"
#include "upkeep/ManagerStore.h"
#include "upkeep/Restore.h"
#include "upkeep/Words.h"
#include "values/Clock.h"
#include "values/FileError.h"
#include "values/FileLock.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

const auto RibbonFile = u"invoices.txt"_s;  // which the screens read
const auto RibbonQuery = u"SELECT TrakaRacunaFile FROM Options"_s;

// The ribbon as the settings name it, where it lies in the register's folder itself.
QString RibbonOf(store::Database& options) {
    auto row = options.OpenSnapshot(RibbonQuery);
    const QString name = row.AtEOF() ? QString() : row[0].TextOrEmpty();
    const bool isElsewhere = name.contains(u'/') || name.contains(u'\\');
    return name.isEmpty() || isElsewhere || name.endsWith(u".pos") ? RibbonFile : name;
}

// What a store may take: its log is a part of it.
qint64 SizeOf(const QString& store) {
    return QFileInfo(store).size() + QFileInfo(store + u"-wal"_s).size();
}

class Work {
public:
    Work(const QString& registerFolder, const BackupPlan& plan, const Progress& progress)
        : register_(QDir(registerFolder).absolutePath()),
          plan_(plan),
          progress_(progress),
          begin_(values::Now()),
          own_(OwnFolder(plan.folder, register_.path())),
          shop_(register_.filePath(u".backup.part"_s)) {}
    ~Work() {
        RemoveFolder(shop_.path());
        if (!part_.isEmpty()) RemoveFolder(part_);
    }
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;

    BackupFacts Make() {
        Begin();
        try {
            CopyStores();
            CopyFiles();
            ReadBack();
            Finish();
        } catch (const values::Error&) {
            if (part_.isEmpty() || IsFit(plan_.folder)) throw;
            throw values::FileError(
                values::PathNotFound,
                Words::tr("The folder for backups, %1, went away while the backup was being made. Was the stick drawn?")
                    .arg(plan_.folder));
        }
        Prune();
        return facts_;
    }

private:
    void Begin() {
        GoOn(progress_, Words::tr("Looking at the folder for backups"));
        RequireNoBrokenRestore(register_.path());
        RequireFit(plan_.folder, register_.path());
        MakeFolder(own_);
        ClearAbandoned();
        MakeFolder(shop_.path());
        backups_ = ListBackups(plan_.folder, register_.path());
        for (const BackupFacts& backup : std::as_const(backups_)) {
            if (!backup.isOwn || !backup.fault.isEmpty()) continue;
            before_ = backup::ReadFileList(backup.path);
            beforePath_ = QDir(backup.path).filePath(backup::Register);
            break;
        }
        NameIt();
        target_ = QDir(part_).filePath(backup::Register);
        MakeFolder(part_);
        MakeFolder(target_);
    }

    // What a killed one left, on both disks.
    void ClearAbandoned() {
        RemoveFolder(shop_.path());
        const QDir own(own_);
        for (const QString& name : own.entryList({u"*"_s + backup::Unfinished}, QDir::Dirs | QDir::NoDotAndDotDot))
            RemoveFolder(own.filePath(name));
    }

    void NameIt() {
        for (QDateTime time = begin_; facts_.path.isEmpty(); time = time.addSecs(1)) {
            const QString path = QDir(own_).filePath(backup::Prefix + time.toString(u"yyyy-MM-dd-HHmmss"_s));
            if (QFileInfo::exists(path)) continue;
            facts_.path = path;
            facts_.made = time;
        }
        part_ = facts_.path + backup::Unfinished;
    }

    // Beside the live ones first: on a stick or in the network the engine would be slow, or find no locks.
    void CopyStores() {
        const store::Place place = store::MainPlace(register_.path());
        GoOn(progress_, Words::tr("Copying the shop"));
        if (!place.IsServer()) RequireRoom(register_.path(), SizeOf(place.Path()));
        const auto main = store::OpenMain(register_.path());
        constexpr int tries = 3;
        for (int i = 1; !CopyMain(*main); ++i)
            if (i == tries)
                throw store::StoreError(store::NotAStore, Words::tr("The days in the copy are not those of the shop."));
        GoOn(progress_, Words::tr("Copying the settings"));
        const auto options = store::OpenOptions(register_.path());
        ribbons_ = {RibbonFile, RibbonOf(*options)};
        SendCopyOf(*options, store::OptionsFile);
        if (register_.exists(ManagerFile)) SendCopyOf(*OpenManagerStore(register_.path()), ManagerFile);
    }

    void SendCopyOf(store::Database& database, const QString& name) {
        const QString copy = shop_.filePath(name);
        database.BackupTo(copy);
        Send(copy, name);
    }

    // False when a day before today is another one in the copy, as when rows came in for it at this very moment.
    bool CopyMain(store::Database& main) {
        const QString copy = shop_.filePath(store::MainFile);
        QFile::remove(copy);
        main.BackupTo(copy);
        RequireRoom(plan_.folder, SizeOf(copy));
        Send(copy, store::MainFile);
        GoOn(progress_, Words::tr("Comparing the days"));
        days_ = ReadDayTotals(*store::Database::Open(copy, store::MainSchema()));
        return AreSameBefore(begin_.date(), days_, ReadDayTotals(main));
    }

    void Send(const QString& from, const QString& name, qint64 atMost = -1) {
        GoOn(progress_, Words::tr("Copying %1").arg(name));
        MakeFoldersOf(target_, name);
        files_[name] = CopyToDisk(from, QDir(target_).filePath(name), atMost);
    }

    QStringList OtherFiles() const {
        QStringList names = register_.entryList({u"*.ini"_s}, QDir::Files);
        for (const QString& ribbon : ribbons_)
            if (register_.exists(ribbon) && !names.contains(ribbon)) names += ribbon;
        for (QDirIterator pictures(register_.filePath(u"img"_s), QDir::Files, QDirIterator::Subdirectories);
             pictures.hasNext();)
            names += register_.relativeFilePath(pictures.next());
        return names;
    }

    void CopyFiles() {
        QHash<QString, Fingerprint> changed;
        qint64 room = 0;
        for (const QString& name : OtherFiles()) {
            GoOn(progress_, Words::tr("Looking at %1").arg(name));
            const Fingerprint fingerprint = FingerprintOf(register_.filePath(name));
            if (LinkToBefore(name, fingerprint)) continue;
            changed[name] = fingerprint;
            room += fingerprint.bytes;
        }
        RequireRoom(plan_.folder, room);
        // The ribbon may have grown since.
        for (auto file = changed.cbegin(); file != changed.cend(); ++file)
            Send(register_.filePath(file.key()), file.key(), file->bytes);
    }

    bool LinkToBefore(const QString& name, const Fingerprint& fingerprint) {
        if (before_.value(name) != fingerprint) return false;
        MakeFoldersOf(target_, name);
        if (!MakeLink(QDir(beforePath_).filePath(name), QDir(target_).filePath(name))) return false;
        files_[name] = fingerprint;
        return true;
    }

    // From the disk, linked ones too: a worn-out stick forgets.
    void ReadBack() {
        for (auto file = files_.cbegin(); file != files_.cend(); ++file) {
            GoOn(progress_, Words::tr("Reading %1 back").arg(file.key()));
            const QString path = QDir(target_).filePath(file.key());
            if (FingerprintOf(path) == *file) continue;
            throw values::FileError(
                values::DeviceError,
                Words::tr("%1 can't be read back as it was written: the disk or stick is worn out.").arg(path));
        }
    }

    void Finish() {
        WriteFacts();
        for (QDirIterator folders(part_, QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
             folders.hasNext();)
            SyncFolder(folders.next());
        SyncFolder(part_);
        GoOn(progress_, Words::tr("Finishing"));
        // Nobody must find it whole in the place of a stick that was drawn.
        if (!IsFit(plan_.folder)) throw values::FileError(values::PathNotFound, plan_.folder);
        Rename(part_, facts_.path);
        part_.clear();
        SyncFolder(own_);
        NoteGood(register_.path(), facts_.made, facts_.path, facts_.bytes);
    }

    void WriteFacts() {
        facts_.version = QStringLiteral(VELTON_VERSION);
        facts_.registerName = RegisterName(register_.path());
        for (const DayTotal& day : std::as_const(days_)) facts_.invoices += day.invoices;
        if (!days_.isEmpty()) facts_.lastDay = days_.last();
        for (const Fingerprint& file : std::as_const(files_)) facts_.bytes += file.bytes;
        const QDir part(part_);
        WriteToDisk(part.filePath(backup::Days), WriteDayTotals(days_));
        WriteToDisk(part.filePath(backup::Files), backup::WriteFileList(files_));
        WriteToDisk(part.filePath(backup::Facts), backup::WriteFacts(facts_));
    }

    // One that is being taken away is no backup any more from the first moment on. What can't be taken away now goes
    // another time.
    void Prune() {
        QList<QDateTime> times{facts_.made};
        const auto counts = [](const BackupFacts& backup) { return backup.isOwn && backup.fault.isEmpty(); };
        for (const BackupFacts& backup : std::as_const(backups_))
            if (counts(backup)) times += backup.made;
        const QList<QDateTime> outdated = OutdatedOf(times, plan_);
        for (const BackupFacts& backup : std::as_const(backups_)) {
            if (!counts(backup) || !outdated.contains(backup.made)) continue;
            const QString gone = backup.path + backup::Unfinished;
            if (QDir().rename(backup.path, gone)) RemoveFolder(gone);
        }
    }

    const QDir register_;
    const BackupPlan& plan_;
    const Progress& progress_;
    const QDateTime begin_;
    const QString own_;  // in the folder for backups
    const QDir shop_;    // the stores, before they are sent there
    QString part_;       // what is being made; empty when it is whole
    QString target_;
    QStringList ribbons_;
    QList<BackupFacts> backups_;
    backup::FileList before_;
    QString beforePath_;
    backup::FileList files_;
    DayTotals days_;
    BackupFacts facts_;
};

}  // namespace

BackupFacts MakeBackup(const QString& registerFolder, const BackupPlan& plan, const Progress& progress) {
    if (plan.folder.isEmpty())
        throw values::FileError(values::PathNotFound, Words::tr("No folder for backups has been chosen yet."));
    const values::FileLock making(BackupLock(registerFolder));
    if (!making.IsHeld())
        throw store::StoreError(store::StoreLocked, Words::tr("A backup of this register is being made just now."));
    const QDateTime begin = values::Now();
    try {
        return Work(registerFolder, plan, progress).Make();
    } catch (const values::Error& error) {
        if (error.Number() != store::Cancelled) NoteFailure(registerFolder, begin, error.Description());
        throw;
    }
}

}  // namespace upkeep
