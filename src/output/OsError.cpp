#include "output/OsError.h"

#include <cerrno>

#include "output/Channel.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {

int NumberOf(int errnoValue) {
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
            return PathNotAFile;
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

}  // namespace

void ThrowOsError(const QString& action, int errnoValue) {
    throw OutputError(NumberOf(errnoValue), action + u": "_s + qt_error_string(errnoValue) + u'.');
}

}  // namespace output
