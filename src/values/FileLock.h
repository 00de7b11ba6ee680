#pragma once

#include <QString>

namespace values {

// A lock on a file or a folder, which ends with the process, however that ends. It counts between two of these in one
// process, too.
class FileLock {
public:
    enum class On { File, Folder };
    enum class When { Now, Shortly };  // within half a second

    // A file is made when it is missing. A FileError when it can't be opened.
    explicit FileLock(const QString& path, On on = On::File, When when = When::Now);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    // False when another one holds it.
    bool IsHeld() const { return descriptor_ >= 0; }

private:
    int descriptor_ = -1;
};

}  // namespace values
