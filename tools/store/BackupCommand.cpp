#include "Commands.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace tool {

void Backup(const QString& folder, const QString& file) {
    if (file == u"-")
        throw values::FileError(values::InvalidCall, u"A copy goes into a file, not to the standard output."_s);
    OpenStore(folder, Which::Main)->BackupTo(file);
}

}  // namespace tool
