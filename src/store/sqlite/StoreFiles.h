#pragma once

#include <sys/stat.h>

#include <QByteArray>
#include <QString>
#include <array>

struct sqlite3;

namespace store::sqlite {

// The files of an open store: the store itself, its log and the log's index. What the folder holds under their names is
// told by device and inode, since somebody may delete, move or replace them while they are open, and the engine would
// go on with files that nobody finds again.
class StoreFiles {
public:
    // `connection` has opened all three. StoreError when one is gone already.
    StoreFiles(sqlite3* connection, const QString& path);
    ~StoreFiles();
    StoreFiles(const StoreFiles&) = delete;
    StoreFiles& operator=(const StoreFiles&) = delete;

    // Whether they still lie where they were opened.
    bool AreInPlace() const;
    // The same of the log alone, at a third of the price: commits go into it.
    bool LogIsInPlace() const { return IsInPlace(files_[LogFile]); }
    // Where the store really lies, when its path is a link.
    const QString& StorePath() const { return storePath_; }

private:
    struct File {
        QByteArray path;
        int handle = -1;  // only names the file: closing it leaves the locks of the engine alone
        struct stat opened = {};
    };

    static void Open(File& file);
    static bool IsInPlace(const File& file);

    static constexpr size_t LogFile = 1;

    QString storePath_;
    std::array<File, 3> files_;
};

}  // namespace store::sqlite
