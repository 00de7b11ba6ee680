#include "upkeep/FileCopy.h"

#include <fcntl.h>
#include <stdio.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QStorageInfo>
#include <cerrno>
#include <limits>

#include "store/StoreError.h"
#include "upkeep/Words.h"
#include "values/FileError.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

constexpr qint64 BlockSize = qint64{256} * 1024;
constexpr qint64 Spare = qint64{4} << 20;  // for what the file system needs besides

[[noreturn]] void ThrowOs(const QString& what, int why) {
    throw values::FileError(values::NumberOfOsError(why), u"%1: %2."_s.arg(what, qt_error_string(why)));
}

void OpenToRead(QFile& file) {
    if (!file.open(QIODevice::ReadOnly))
        throw values::FileError(values::NumberOfFailure(file),
                                Words::tr("%1 can't be read: %2.").arg(file.fileName(), file.errorString()));
}

void ReadBlocks(QFile& file, qint64 atMost, const std::function<void(const QByteArray&)>& take) {
    qint64 left = atMost < 0 ? std::numeric_limits<qint64>::max() : atMost;
    while (left > 0) {
        const QByteArray block = file.read(std::min(left, BlockSize));
        if (file.error() != QFileDevice::NoError)
            throw values::FileError(values::DeviceError,
                                    Words::tr("%1 can't be read: %2.").arg(file.fileName(), file.errorString()));
        if (block.isEmpty()) return;
        left -= block.size();
        take(block);
    }
}

// A file that is being written, to its user alone.
class Written {
public:
    explicit Written(const QString& path) : path_(path) {
        constexpr mode_t itsUserAlone = 0600;
        file_ = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, itsUserAlone);
        if (file_ < 0) Fail();
    }
    ~Written() { ::close(file_); }
    Written(const Written&) = delete;
    Written& operator=(const Written&) = delete;

    void Add(const QByteArray& bytes) {
        for (qsizetype at = 0; at < bytes.size();) {
            const ssize_t written = ::write(file_, bytes.constData() + at, static_cast<size_t>(bytes.size() - at));
            if (written < 0 && errno != EINTR) Fail();
            at += std::max<ssize_t>(written, 0);
        }
    }
    void Finish() {
        if (::fsync(file_) != 0) Fail();
    }

private:
    [[noreturn]] void Fail() const {
        const int why = errno;
        ThrowOs(Words::tr("%1 can't be written").arg(path_), why);
    }

    QString path_;
    int file_ = -1;
};

}  // namespace

Fingerprint FingerprintOf(const QString& path, qint64 atMost) {
    QFile file(path);
    OpenToRead(file);
    ::posix_fadvise(file.handle(), 0, 0, POSIX_FADV_DONTNEED);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    Fingerprint fingerprint;
    ReadBlocks(file, atMost, [&](const QByteArray& block) {
        hash.addData(block);
        fingerprint.bytes += block.size();
    });
    fingerprint.sha256 = hash.result().toHex();
    return fingerprint;
}

Fingerprint CopyToDisk(const QString& from, const QString& to, qint64 atMost) {
    QFile file(from);
    OpenToRead(file);
    Written copy(to);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    Fingerprint fingerprint;
    ReadBlocks(file, atMost, [&](const QByteArray& block) {
        copy.Add(block);
        hash.addData(block);
        fingerprint.bytes += block.size();
    });
    copy.Finish();
    fingerprint.sha256 = hash.result().toHex();
    return fingerprint;
}

void WriteToDisk(const QString& path, const QByteArray& content) {
    Written file(path);
    file.Add(content);
    file.Finish();
}

void SyncFolder(const QString& path) {
    const int folder = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const bool isSynced = folder >= 0 && (::fsync(folder) == 0 || errno == EINVAL || errno == ENOTSUP);
    const int why = errno;
    if (folder >= 0) ::close(folder);
    if (!isSynced) ThrowOs(Words::tr("%1 can't be brought to the disk").arg(path), why);
}

bool MakeLink(const QString& of, const QString& path) {
    return ::link(QFile::encodeName(of).constData(), QFile::encodeName(path).constData()) == 0;
}

void Rename(const QString& from, const QString& to) {
    if (::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0) return;
    const int why = errno;
    ThrowOs(Words::tr("%1 can't be renamed to %2").arg(from, to), why);
}

void MakeFolder(const QString& path) {
    constexpr auto itsUserAlone = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    if (QDir(path).exists() || QDir().mkdir(path, itsUserAlone)) return;
    const int why = errno;
    ThrowOs(Words::tr("The folder %1 can't be made").arg(path), why);
}

void MakeFoldersOf(const QString& folder, const QString& name) {
    for (qsizetype slash = name.indexOf(u'/'); slash >= 0; slash = name.indexOf(u'/', slash + 1))
        MakeFolder(QDir(folder).filePath(name.first(slash)));
}

bool RemoveFolder(const QString& path) {
    QDir folder(path);
    return !folder.exists() || folder.removeRecursively();
}

void RequireRoom(const QString& folder, qint64 bytes) {
    const QStorageInfo disk(folder);
    if (!disk.isValid() || disk.bytesAvailable() >= bytes + Spare) return;
    const QLocale& locale = values::UserLocale();
    throw values::FileError(
        values::DiskFull,
        Words::tr("There is too little room in %1: %2 are needed, and %3 are free.")
            .arg(folder, locale.formattedDataSize(bytes + Spare), locale.formattedDataSize(disk.bytesAvailable())));
}

}  // namespace upkeep
