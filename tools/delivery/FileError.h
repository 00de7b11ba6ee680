#pragma once

#include <QFileDevice>

#include "values/Error.h"

namespace delivery {

constexpr int InvalidCall = 5;
constexpr int FileMissing = 53;
constexpr int DeviceFault = 57;
constexpr int DiskFull = 61;
constexpr int PermissionDenied = 70;
constexpr int PathFault = 75;
constexpr int StoreExists = 3204;

// A file or folder outside the stores that could not be read, made or written.
class FileError : public values::Error {
public:
    using values::Error::Error;
    // What the file itself tells about its last failure; `doing` names the attempt, such as "write 'x'".
    FileError(const QFileDevice& file, const QString& doing);
};

}  // namespace delivery
