#include "Commands.h"
#include "ToolWords.h"
#include "values/FileError.h"

namespace tool {

void Backup(const QString& folder, const QString& file) {
    if (file == u"-")
        throw values::FileError(values::InvalidCall,
                                ToolWords::tr("A copy goes into a file, not to the standard output."));
    OpenStore(folder, Which::Main)->BackupTo(file);
}

}  // namespace tool
