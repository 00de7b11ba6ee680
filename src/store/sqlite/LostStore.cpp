// What the engine does when its files are no longer those in the folder: somebody deleted the log of an open store,
// moved the store away or put a backup in its place. Through its open descriptors it still reads all that it stored.

#include <sqlite3.h>

#include <QFileInfo>

#include "store/Words.h"
#include "store/sqlite/SqliteEngine.h"
#include "values/Clock.h"

using namespace Qt::StringLiterals;

namespace store::sqlite {

void SqliteEngine::RequireInPlace(bool isInPlace) {
    if (!isLost_ && isInPlace) return;
    GiveUp();
    if (savedAs_.isEmpty()) SaveBesideTheStore();
    ThrowFilesLost();
}

// From now on the engine leaves the files in the folder alone: a log that is brought into a store which others have
// written to meanwhile would destroy it.
void SqliteEngine::GiveUp() noexcept {
    isLost_ = true;
    if (InTransaction()) sqlite3_exec(Handle(), "ROLLBACK", nullptr, nullptr, nullptr);
    sqlite3_db_config(Handle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    sqlite3_wal_autocheckpoint(Handle(), 0);
}

void SqliteEngine::SaveBesideTheStore() {
    constexpr int mostInOneSecond = 10;
    const QFileInfo store(files_.StorePath());
    const QString name = u"%1/%2-saved-%3"_s.arg(store.absolutePath(), store.completeBaseName(),
                                                 values::Now().toString(u"yyyyMMdd-HHmmss"_s));
    for (int i = 1; i <= mostInOneSecond && savedAs_.isEmpty(); ++i) {
        const QString path = name + (i > 1 ? u"-%1"_s.arg(i) : QString()) + u'.' + store.suffix();
        try {
            BackupTo(path);
            savedAs_ = path;
        } catch (const StoreError& error) {
            whyNotSaved_ = error.Description();
            if (error.Number() != FileExists) return;
        }
    }
}

void SqliteEngine::ThrowFilesLost() const {
    if (!savedAs_.isEmpty())
        throw FilesLost(Words::tr("The store %1 was deleted, moved away or replaced (or its log was) while the program "
                                  "had it open, so nothing more is written to it; what was stored until then is saved "
                                  "in %2.")
                            .arg(files_.StorePath(), savedAs_));
    throw FilesLost(Words::tr("The store %1 was deleted, moved away or replaced (or its log was) while the program had "
                              "it open, so nothing more is written to it; no copy of what was stored until then could "
                              "be made: %2")
                        .arg(files_.StorePath(), whyNotSaved_));
}

}  // namespace store::sqlite
