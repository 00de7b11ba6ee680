#include "values/InstanceLock.h"

#include <memory>

#include "values/FileLock.h"

using values::FileLock;

namespace {

std::unique_ptr<FileLock> lockedFolder;

}  // namespace

bool LockFolder(const QString& folder) {
    if (lockedFolder) return true;
    auto lock = std::make_unique<FileLock>(folder, FileLock::On::Folder);
    if (!lock->IsHeld()) return false;
    lockedFolder = std::move(lock);
    return true;
}

void UnlockFolder() {
    lockedFolder.reset();
}
