#include "store/StorePath.h"

#include <QDir>
#include <QFileInfo>

#include "store/StoreError.h"
#include "values/FileError.h"
#include "values/IniFile.h"

using namespace Qt::StringLiterals;

namespace store {

namespace {

QString Unquoted(const QString& text) {
    const bool quoted = text.size() >= 2 && text.startsWith(u'"') && text.endsWith(u'"');
    return quoted ? text.sliced(1, text.size() - 2) : text;
}

values::IniFile ReadIni(const QString& path) {
    try {
        return values::IniFile::Read(path);
    } catch (const values::FileError& error) {
        throw StoreError(IniNotReadable, error.Description());
    }
}

// A file that says something, but no path, is an error: a register must not sell into another store than its own for a
// slip.
QString PathInIni(const QString& iniFile) {
    const auto ini = ReadIni(iniFile);
    const auto path = ini.Entry(u"main"_s, u"path"_s);
    if (!path && !ini.IsSilent())
        throw StoreError(IniNotReadable,
                         u"Cannot read %1: it has no line path=... in a section [main]."_s.arg(iniFile));
    return Unquoted(path.value_or(QString())).replace(u'\\', u'/');
}

}  // namespace

Place MainPlace(const QString& programFolder) {
    const QDir folder(programFolder);
    const QString path = PathInIni(folder.filePath(u"store.ini"_s));
    if (path.isEmpty()) return folder.filePath(MainFile);
    const QString target = folder.filePath(path);
    return QFileInfo(target).isDir() ? QDir(target).filePath(MainFile) : target;
}

Place OptionsPlace(const QString& programFolder) {
    return QDir(programFolder).filePath(OptionsFile);
}

}  // namespace store
