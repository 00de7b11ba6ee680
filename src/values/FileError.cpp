#include "values/FileError.h"

#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>

#include "values/Words.h"

namespace values {

int NumberOfOsError(int errnoValue) {
    switch (errnoValue) {
        case ENOENT:
        case ENOTDIR:
        case ENAMETOOLONG:
            return PathNotFound;
        case EACCES:
        case EPERM:
        case EROFS:
            return PermissionDenied;
        case EISDIR:
        case ELOOP:
        case ETXTBSY:
            return PathFault;
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return DiskFull;
        case ENXIO:
        case ENODEV:
        case EBUSY:
        case ECONNREFUSED:
        case EHOSTUNREACH:
        case ENETUNREACH:
            return DeviceUnavailable;
        default:
            return DeviceError;
    }
}

// A file that could not be opened does not say why: one that is there was found.
int NumberOfFailure(const QFileDevice& file) {
    switch (file.error()) {
        case QFileDevice::ResourceError:
            return DiskFull;
        case QFileDevice::PermissionsError:
            return PermissionDenied;
        case QFileDevice::ReadError:
        case QFileDevice::WriteError:
            return DeviceError;
        default:
            return QFileInfo::exists(file.fileName()) ? PathFault : PathNotFound;
    }
}

namespace {

QString SentenceOf(FileWork work) {
    switch (work) {
        case FileWork::Reading:
            return Words::tr("Cannot read '%1': %2");
        case FileWork::Writing:
            return Words::tr("Cannot write '%1': %2");
        case FileWork::Copying:
            return Words::tr("Cannot copy '%1': %2");
    }
    Q_UNREACHABLE();
}

}  // namespace

FileError::FileError(const QFileDevice& file, FileWork work, const QString& path)
    : Error(NumberOfFailure(file), SentenceOf(work).arg(path.isEmpty() ? file.fileName() : path, file.errorString())) {}

void SaveFile(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        throw FileError(file, FileWork::Writing);
}

}  // namespace values
