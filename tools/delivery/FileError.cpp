#include "delivery/FileError.h"

using namespace Qt::StringLiterals;

namespace delivery {

namespace {

int NumberOf(QFileDevice::FileError error) {
    switch (error) {
        case QFileDevice::ResourceError:
            return DiskFull;
        case QFileDevice::PermissionsError:
            return PermissionDenied;
        case QFileDevice::ReadError:
        case QFileDevice::WriteError:
            return DeviceFault;
        default:
            return PathFault;
    }
}

}  // namespace

FileError::FileError(const QFileDevice& file, const QString& doing)
    : Error(NumberOf(file.error()), u"Cannot %1: %2"_s.arg(doing, file.errorString())) {}

}  // namespace delivery
