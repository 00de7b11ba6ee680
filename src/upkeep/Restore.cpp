#include "upkeep/Restore.h"

#include <QDir>
#include <QUuid>
#include <algorithm>

#include "store/Creation.h"
#include "store/StorePath.h"
#include "upkeep/BackupPlace.h"
#include "upkeep/BackupPlan.h"
#include "upkeep/ClosedTill.h"
#include "upkeep/ManagerStore.h"
#include "upkeep/RestoreSteps.h"
#include "upkeep/Words.h"
#include "values/Clock.h"
#include "values/FileError.h"
#include "values/FileLock.h"
#include "values/IniEdit.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

const auto StoreIni = u"store.ini"_s;
const auto TillIni = u"velton.ini"_s;

void RequireSound(store::Database& database, const QString& name) {
    const QStringList faults = database.CheckIntegrity();
    if (!faults.isEmpty())
        throw store::StoreError(store::NotAStore,
                                Words::tr("%1 in the backup is damaged: %2").arg(name, faults.first()));
}

// Nothing that was kept before is touched.
QString FreeName(const QDir& registerFolder) {
    for (QDateTime time = values::Now();; time = time.addSecs(1)) {
        QString name = time.toString(u"'replaced-'yyyy-MM-dd-HHmmss"_s);
        if (!registerFolder.exists(name)) return name;
    }
}

class Work {
public:
    Work(const QString& registerFolder, const BackupFacts& backup, const Progress& progress)
        : register_(QDir(registerFolder).absolutePath()),
          backup_(backup),
          progress_(progress),
          steps_(register_.path()),
          place_(store::MainPlace(register_.path())),
          keptAs_(FreeName(register_)),
          comingStore_(steps_.ComingStore(place_.Path())) {}

    Restored Restore() {
        try {
            Bring();
            Check();
            GoOn(progress_, Words::tr("Putting the shop in its place"));
            ReplaceStore();
        } catch (...) {
            if (steps_.IsUnderWay()) {
                steps_.End();
            } else {
                RemoveComing();
                steps_.TakeBack();
            }
            throw;
        }
        steps_.End();
        return Told();
    }

private:
    // What only grows holds more where it is there: the ribbon, and what the owner's program keeps.
    bool IsWanted(const QString& name) const {
        const bool isReplaced =
            name == store::MainFile || name == store::OptionsFile || name.endsWith(u".ini") || name.contains(u'/');
        return name != StoreIni && (isReplaced || !register_.exists(name));
    }

    void RemoveComing() const {
        for (const QString& ending : StoreEndings()) QFile::remove(comingStore_ + ending);
    }

    void Bring() {
        RemoveFolder(steps_.Coming().path());
        RemoveComing();
        MakeFolder(steps_.Coming().path());
        RequireRoom(register_.path(), backup_.bytes);
        const backup::FileList files = backup::ReadFileList(backup_.path);
        for (auto file = files.cbegin(); file != files.cend(); ++file)
            if (IsWanted(file.key())) BringFile(file.key(), *file);
        for (const QString& name : {QString(store::MainFile), QString(store::OptionsFile)})
            if (!files.contains(name))
                throw values::FileError(values::FileMissing, Words::tr("%1 is missing in the backup.").arg(name));
        KeepBackupFolder();
    }

    void BringFile(const QString& name, const Fingerprint& fingerprint) {
        GoOn(progress_, Words::tr("Reading %1").arg(name));
        if (name.split(u'/').contains(u".."_s) || name.startsWith(u'/'))
            throw values::FileError(values::PathFault, Words::tr("The list of files of the backup is damaged."));
        MakeFoldersOf(steps_.Coming().path(), name);
        const QString from = QDir(QDir(backup_.path).filePath(backup::Register)).filePath(name);
        const QString to = name == store::MainFile ? comingStore_ : steps_.Coming().filePath(name);
        if (CopyToDisk(from, to) == fingerprint) return;
        throw values::FileError(values::DeviceError, Words::tr("%1 in the backup is damaged.").arg(name));
    }

    // Backups go on to where they went last.
    void KeepBackupFolder() {
        const QString folder = ReadBackupPlan(register_.path()).folder;
        if (folder.isEmpty()) return;
        values::IniEdit ini(steps_.Coming().filePath(TillIni));
        ini.Set(u"backup"_s, u"folder"_s, folder);
        ini.Save();
    }

    // Opening them carries older stores forward.
    void Check() {
        GoOn(progress_, Words::tr("Checking the backup"));
        const auto main = store::Database::Open(comingStore_, store::MainSchema());
        RequireSound(*main, store::MainFile);
        days_ = ReadDayTotals(*main);
        if (days_ != DaysOf(backup_))
            throw store::StoreError(store::NotAStore,
                                    Words::tr("The days in the backup's shop are not those that it was made with."));
        RequireSound(*store::OpenOptions(steps_.Coming().path()), store::OptionsFile);
        if (steps_.Coming().exists(ManagerFile)) RequireSound(*OpenManagerStore(steps_.Coming().path()), ManagerFile);
    }

    // None where there is no store, or one that can't be opened any more.
    std::unique_ptr<store::Database> OpenLive() const {
        try {
            return store::Database::Open(place_, store::MainSchema());
        } catch (const store::StoreError& error) {
            if (error.Number() != store::FileNotFound && error.Number() != store::NotAStore) throw;
            return nullptr;
        }
    }

    void ReplaceStore() {
        const auto live = OpenLive();
        if (place_.IsServer()) return ReplaceOnServer(live.get());
        if (live) {
            live->TakeAlone();
            oldStore_ = live->PrepareToRetire();
            steps_.Begin(comingStore_, oldStore_, keptAs_);
            live->RetireFor(comingStore_);
        } else {
            const bool isHere = QFileInfo(place_.Path()).absolutePath() == register_.absolutePath();
            oldStore_ =
                isHere ? QDir(register_.filePath(keptAs_)).filePath(store::MainFile) : place_.Path() + u'-' + keptAs_;
            steps_.Begin(comingStore_, oldStore_, keptAs_);
            for (const QString& ending : StoreEndings())
                if (QFileInfo::exists(place_.Path() + ending)) Rename(place_.Path() + ending, oldStore_ + ending);
            Rename(comingStore_, place_.Path());
        }
        SyncFolder(QFileInfo(place_.Path()).absolutePath());
    }

    // In a schema of its own until it is whole.
    void ReplaceOnServer(store::Database* live) {
        auto source = store::Database::Open(comingStore_, store::MainSchema());
        const QString apart = u"velton_restored_"_s + QUuid::createUuid().toString(QUuid::Id128).first(16);
        const store::Place place = live != nullptr ? place_.WithSchema(apart) : place_;
        store::Creation creation(place, store::MainSchema());
        creation.Store().AddAllOf(*source);
        source.reset();  // its log would come into the register's folder
        if (ReadDayTotals(creation.Store()) != days_)
            throw store::StoreError(store::NotAStore, Words::tr("The days on the server are not those of the backup."));
        steps_.Begin(comingStore_, {}, keptAs_);
        creation.Finish();
        if (live != nullptr) {
            live->TakeAlone();
            oldStore_ = live->PrepareToRetire();
            live->RetireFor(place);
        }
        QFile::remove(comingStore_);
    }

    Restored Told() const {
        Restored restored;
        restored.keptAs = register_.filePath(keptAs_);
        restored.oldStore = oldStore_;
        const QString here = QDir(restored.keptAs).filePath(store::MainFile);
        if (QFile::exists(here)) restored.oldStore = here;
        for (const DayTotal& day : days_) restored.invoices += day.invoices;
        restored.days = static_cast<int>(days_.size());
        return restored;
    }

    const QDir register_;
    const BackupFacts& backup_;
    const Progress& progress_;
    RestoreSteps steps_;
    const store::Place place_;
    const QString keptAs_;
    const QString comingStore_;
    QString oldStore_;
    DayTotals days_;
};

}  // namespace

BackupFacts FindBackup(const QString& pathOrName, const QString& folder, const QString& registerFolder) {
    if (QFileInfo(pathOrName).isDir()) return ReadBackup(QFileInfo(pathOrName).absoluteFilePath(), registerFolder);
    QList<BackupFacts> named;
    if (!folder.isEmpty()) named = ListBackups(folder, registerFolder);
    named.removeIf([&](const BackupFacts& backup) { return backup.Name() != pathOrName; });
    std::ranges::stable_partition(named, &BackupFacts::isOwn);
    if (named.isEmpty())
        throw values::FileError(values::PathNotFound, Words::tr("There is no backup %1.").arg(pathOrName));
    return named.first();
}

RestorePreview PreviewRestore(const QString& registerFolder, const BackupFacts& backup) {
    RestorePreview preview;
    preview.backup = backup;
    DayTotals live;
    try {
        live = ReadDayTotals(*store::OpenMain(registerFolder));
    } catch (const store::StoreError& error) {
        preview.liveFault = error.Description();
    }
    preview.days = Compare(live, DaysOf(backup));
    return preview;
}

Restored RestoreBackup(const QString& registerFolder, const BackupFacts& backup, const Progress& progress) {
    if (!backup.fault.isEmpty()) throw store::StoreError(store::NotAStore, backup.fault);
    EndBrokenRestore(registerFolder);
    const ClosedTill till(registerFolder);
    const values::FileLock backups(BackupLock(registerFolder));
    if (!backups.IsHeld())
        throw store::StoreError(store::StoreLocked,
                                Words::tr("A backup of this register is being made just now. Try again in a minute."));
    return Work(registerFolder, backup, progress).Restore();
}

void EndBrokenRestore(const QString& registerFolder) {
    RestoreSteps steps(registerFolder);
    if (!steps.IsUnderWay()) return;
    if (const values::FileLock alone(registerFolder, values::FileLock::On::Folder); alone.IsHeld()) steps.End();
}

void RequireNoBrokenRestore(const QString& registerFolder) {
    if (RestoreSteps(registerFolder).IsUnderWay())
        throw values::FileError(values::PathFault, Words::tr("A restore was not ended. Start the till once."));
}

}  // namespace upkeep
