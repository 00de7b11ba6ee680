#include "output/Folder.h"

#include <QCoreApplication>
#include <QDir>

namespace output {

namespace {
QString chosenFolder;
}

QString ProgramFolder() {
    return chosenFolder.isEmpty() ? QCoreApplication::applicationDirPath() : chosenFolder;
}

void SetProgramFolder(const QString& folder) {
    chosenFolder = folder;
}

QString InProgramFolder(QString path) {
    path.replace(u'\\', u'/');
    return QDir::cleanPath(ProgramFolder() + u'/' + path);
}

}  // namespace output
