#pragma once

#include <QString>

namespace store::sqlite {

// A file that is built beside its place and moved there when it is whole, so that a half-written one is never seen.
// What lies at the place, or the log of a store that once did, is refused with 3204.
class NewFile {
public:
    explicit NewFile(const QString& path);
    ~NewFile();  // takes away what was not finished
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    const QString& Path() const { return temporary_; }
    // Brings the file to the disk and moves it to its place; no connection may have it open.
    void Finish();

private:
    void RemoveTemporary() const;

    QString path_;
    QString temporary_;
};

}  // namespace store::sqlite
