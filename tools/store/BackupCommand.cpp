#include <QFileInfo>

#include "Commands.h"
#include "delivery/FileError.h"

using namespace Qt::StringLiterals;

namespace tool {

void Backup(const QString& folder, const QString& file) {
    if (QFileInfo::exists(file))
        throw delivery::FileError(delivery::StoreExists, u"The file '%1' exists already."_s.arg(file));
    OpenStore(folder, Which::Main)->BackupTo(file);
}

}  // namespace tool
