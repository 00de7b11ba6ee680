#include "upkeep/Restore.h"

#include <unistd.h>

#include <QDir>
#include <QDirIterator>
#include <QScopeGuard>
#include <algorithm>
#include <map>

#include "store/StorePath.h"
#include "upkeep/Words.h"
#include "values/Clock.h"
#include "values/FileError.h"
#include "values/InstanceLock.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

// Of a till in the folder, which has it for as long as it runs.
class FolderHeld {
public:
    explicit FolderHeld(const QString& folder) {
        if (!LockFolder(folder))
            throw store::StoreError(store::StoreLocked, Words::tr("A till works in this folder. End it first."));
    }
    ~FolderHeld() { UnlockFolder(); }
    FolderHeld(const FolderHeld&) = delete;
    FolderHeld& operator=(const FolderHeld&) = delete;
};

void CopyFile(const QString& from, const QString& to) {
    QFile source(from);
    QFile::remove(to);
    if (!source.copy(to)) throw values::FileError(source, u"copy '%1'"_s.arg(from));
    QFile::setPermissions(to, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

void CheckStore(const QString& file, const store::Schema& schema) {
    const QStringList faults = store::Database::Open(file, schema)->CheckIntegrity();
    if (!faults.isEmpty())
        throw store::StoreError(store::NotAStore, Words::tr("The backup is damaged: %1").arg(faults.first()));
}

// A store that can be opened is whole in its one file then, and nobody else has it open; what is damaged is nobody's.
std::unique_ptr<store::Database> TakeStore(const QString& path) {
    try {
        auto database = store::Database::Open(path, store::MainSchema());
        database->TakeAlone();
        return database;
    } catch (const store::StoreError& error) {
        if (error.Number() == store::StoreLocked || error.Number() == store::HeldExclusively) throw;
        return nullptr;
    }
}

// The old one gets a second name before the new one takes the first.
void Replace(const QString& store, const QString& by, const QString& keptAs) {
    const QByteArray from = QFile::encodeName(by), to = QFile::encodeName(store), kept = QFile::encodeName(keptAs);
    if (QFileInfo::exists(store) && link(to.constData(), kept.constData()) != 0) CopyFile(store, keptAs);
    for (const QString& ending : {u"-wal"_s, u"-shm"_s})
        if (QFileInfo::exists(store + ending)) QFile::rename(store + ending, keptAs + ending);
    if (rename(from.constData(), to.constData()) != 0)
        throw values::FileError(values::NumberOfOsError(errno), Words::tr("%1 can't be put in its place.").arg(store));
}

void BringBackMissing(const QString& registerFolder, const QString& backup) {
    const QDir from(QDir(backup).absolutePath()), to(registerFolder);
    for (QDirIterator files(from.path(), QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
        const QString file = from.relativeFilePath(files.next());
        const bool isPutBack =
            file == store::MainFile || file == store::OptionsFile || QFileInfo::exists(to.filePath(file));
        if (isPutBack || file == u"backup.ini") continue;
        to.mkpath(QFileInfo(file).path());
        CopyFile(from.filePath(file), to.filePath(file));
    }
}

}  // namespace

std::vector<DayDifference> CompareWithBackup(const QString& registerFolder, const QString& backup) {
    std::map<QDate, DayDifference> days;
    try {
        const auto store = store::Database::Open(store::MainPlace(registerFolder), store::MainSchema());
        for (const DayTotal& total : DayTotalsOf(*store)) days[total.day].inStore = total;
    } catch (const store::StoreError&) {
        days.clear();  // which is why it is to be replaced
    }
    const auto copy = store::Database::Open(QDir(backup).filePath(store::MainFile), store::MainSchema());
    for (const DayTotal& total : DayTotalsOf(*copy)) days[total.day].inBackup = total;
    std::vector<DayDifference> differences;
    for (auto& [day, difference] : days) {
        if (difference.inStore == difference.inBackup) continue;
        difference.day = day;
        differences.push_back(difference);
    }
    std::ranges::reverse(differences);
    return differences;
}

QString RestoreRegister(const QString& registerFolder, const QString& backup, const Progress& progress) {
    const store::Place place = store::MainPlace(registerFolder);
    if (place.IsServer())
        throw store::StoreError(store::NotSupported,
                                Words::tr("The store lies on a server. How a backup gets back there stands in the "
                                          "administrator's guide."));
    const auto go = [&](const QString& doing) {
        if (progress && !progress(doing)) throw store::StoreError(store::Cancelled, Words::tr("Nothing was replaced."));
    };
    const FolderHeld held(registerFolder);
    const QDir folder(QDir(registerFolder).absolutePath()), from(backup);
    const QString main = place.Path(), options = folder.filePath(store::OptionsFile);
    const QString newMain = main + u".restored"_s, newOptions = options + u".restored"_s;
    const auto clearAway = qScopeGuard([&] {
        for (const QString& left : {newMain, newOptions}) QFile::remove(left);
    });
    go(Words::tr("The backup is copied and checked."));
    CopyFile(from.filePath(store::MainFile), newMain);
    CopyFile(from.filePath(store::OptionsFile), newOptions);
    CheckStore(newMain, store::MainSchema());
    CheckStore(newOptions, store::OptionsSchema());
    auto taken = TakeStore(main);
    const QString kept = folder.filePath(values::Now().toString(u"'replaced-'yyyyMMdd-HHmmss"_s));
    if (!QDir().mkpath(kept))
        throw values::FileError(values::PathFault, Words::tr("The folder %1 can't be made.").arg(kept));
    go(Words::tr("The stores are put in their place."));
    Replace(main, newMain, QDir(kept).filePath(store::MainFile));
    Replace(options, newOptions, QDir(kept).filePath(store::OptionsFile));
    BringBackMissing(registerFolder, backup);
    return kept;
}

}  // namespace upkeep
