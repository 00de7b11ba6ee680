#include "values/InstanceLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QFile>

#include "values/Error.h"

namespace {

int lockedFolder = -1;

}  // namespace

bool LockFolder(const QString& folder) {
    if (lockedFolder >= 0) return true;
    const int descriptor = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        throw values::Error(values::PathNotFound, QStringLiteral("The folder %1 can't be opened.").arg(folder));
    if (flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        close(descriptor);
        return false;
    }
    lockedFolder = descriptor;
    return true;
}

void UnlockFolder() {
    if (lockedFolder < 0) return;
    close(lockedFolder);
    lockedFolder = -1;
}
