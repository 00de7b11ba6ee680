#pragma once

#include <QFileDevice>

#include "values/Error.h"

namespace values {

// The number that an errno value, or the last failure of a file, stands for: the one map of both.
int NumberOfOsError(int errnoValue);
int NumberOfFailure(const QFileDevice& file);

enum class FileWork { Reading, Writing, Copying };

// A file or folder outside the stores that could not be read, made or written.
class FileError : public Error {
public:
    using Error::Error;
    // What the file itself tells about its last failure; `path` is that of the file unless another is meant.
    FileError(const QFileDevice& file, FileWork work, const QString& path = {});
};

// Writes a whole file; where that fails it throws a FileError, and a file that was there stays as it was.
void SaveFile(const QString& path, const QByteArray& bytes);

}  // namespace values
