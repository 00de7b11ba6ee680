#include "store/sqlite/StoreFiles.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>

#include "store/StoreError.h"
#include "store/Words.h"

namespace store::sqlite {

namespace {

bool SameFile(const struct stat& one, const struct stat& other) {
    return one.st_ino == other.st_ino && one.st_dev == other.st_dev;
}

}  // namespace

StoreFiles::StoreFiles(sqlite3* connection, const QString& path) {
    const char* opened = sqlite3_db_filename(connection, "main");
    storePath_ = QFile::decodeName(opened);
    files_[0].path = QFile::encodeName(QFileInfo(path).absoluteFilePath());
    files_[LogFile].path = sqlite3_filename_wal(opened);
    files_[2].path = QByteArray(opened) + "-shm";
    try {
        for (File& file : files_) Open(file);
    } catch (...) {
        for (const File& file : files_) ::close(file.handle);
        throw;
    }
}

StoreFiles::~StoreFiles() {
    for (const File& file : files_) ::close(file.handle);
}

void StoreFiles::Open(File& file) {
    file.handle = ::open(file.path.constData(), O_PATH | O_CLOEXEC);
    if (file.handle < 0 || ::fstat(file.handle, &file.opened) != 0)
        throw StoreError(
            DiskError,
            Words::tr("The file %1 went away while the store was being opened.").arg(QFile::decodeName(file.path)));
}

bool StoreFiles::AreInPlace() const {
    return std::ranges::all_of(files_, &StoreFiles::IsInPlace);
}

// Some file systems make up their numbers, and may give the same file another one: then both sides are asked anew.
bool StoreFiles::IsInPlace(const File& file) {
    struct stat now = {};
    if (::stat(file.path.constData(), &now) != 0) return false;
    if (SameFile(now, file.opened)) return true;
    struct stat held = {};
    return ::fstat(file.handle, &held) == 0 && SameFile(now, held);
}

}  // namespace store::sqlite
