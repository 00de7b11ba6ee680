#pragma once

#include <QString>

namespace store::sqlite {

// Tells that a process is working at a file that is not finished. It ends with the process, however that ends, and
// lies in a file of its own beside it, since the engine has locks on the file itself.
class PartLock {
public:
    explicit PartLock(const QString& part);
    ~PartLock();
    PartLock(const PartLock&) = delete;
    PartLock& operator=(const PartLock&) = delete;

    // False when another process holds it.
    bool IsHeld() const { return descriptor_ >= 0; }

private:
    enum class Try { Taken, Busy, Gone };
    Try Take();

    QByteArray path_;
    int descriptor_ = -1;
};

// Takes away all that the engine made for a part.
void RemovePart(const QString& part);
// Takes away the parts in a folder that nobody is working at any more.
void RemoveAbandonedParts(const QString& folder, const QString& ending);

}  // namespace store::sqlite
