#include "store/sqlite/Disk.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>

#include "store/StoreError.h"

using namespace Qt::StringLiterals;

namespace store::sqlite {

namespace {

void RefuseWhatExists(const QString& path) {
    for (const QString& ending : {u""_s, u"-wal"_s, u"-journal"_s})
        if (QFileInfo::exists(path + ending))
            throw StoreError(FileExists, u"The file %1 exists already."_s.arg(path + ending));
}

void SyncToDisk(const QString& path, int flags) {
    const int file = ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC);
    const bool synced = file >= 0 && ::fsync(file) == 0;
    if (file >= 0) ::close(file);
    if (!synced) throw StoreError(DiskError, u"%1 could not be brought to the disk."_s.arg(path));
}

}  // namespace

NewFile::NewFile(const QString& path) : path_(path), temporary_(path + u".part"_s) {
    RefuseWhatExists(path_);
    RemoveTemporary();
}

NewFile::~NewFile() {
    RemoveTemporary();
}

void NewFile::Finish() {
    SyncToDisk(temporary_, O_RDONLY);
    RefuseWhatExists(path_);
    if (!QFile::rename(temporary_, path_)) throw StoreError(DiskError, u"%1 could not be made."_s.arg(path_));
    SyncToDisk(QFileInfo(path_).absolutePath(), O_RDONLY | O_DIRECTORY);
}

void NewFile::RemoveTemporary() const {
    for (const QString& ending : {u""_s, u"-wal"_s, u"-shm"_s, u"-journal"_s}) QFile::remove(temporary_ + ending);
}

}  // namespace store::sqlite
