#pragma once

#include <QString>
#include <memory>

namespace store::sqlite {

class PartLock;

// A file that is built beside its place (as NAME.velton.part) and moved there when it is whole, so that a half-written
// one is never seen. It belongs to its user alone, whatever the umask. What a killed process left of such a file in the
// same folder is cleared away; one that another process is working at is not.
//
// 3204 when anything lies at the place, a link that leads nowhere included, or the log of a store that once did;
// 3024 no such folder, 3027 a folder that cannot be written to, 3251 a name that no store can have, 3218 another
// process is just making this very file.
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
    void MakeEmpty() const;

    QString path_;
    QString temporary_;
    std::unique_ptr<PartLock> lock_;
};

}  // namespace store::sqlite
