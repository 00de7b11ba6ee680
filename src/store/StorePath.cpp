#include "store/StorePath.h"

#include <QDir>
#include <QFileInfo>

#include "store/Database.h"
#include "store/StoreError.h"
#include "store/Words.h"
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

QString EntryOf(const values::IniFile& ini, const QString& key) {
    return Unquoted(ini.Entry(u"main"_s, key).value_or(QString()));
}

// An ini that says something, but not where the store lies, is an error, and so is one that says it twice: a register
// must not sell into another store than its own for a slip.
void RequireOneEntry(const values::IniFile& ini, const QString& iniFile) {
    const bool hasPath = ini.Entry(u"main"_s, u"path"_s).has_value();
    const bool hasUrl = ini.Entry(u"main"_s, u"url"_s).has_value();
    if (hasPath && hasUrl)
        throw StoreError(IniNotReadable,
                         Words::tr("Cannot use %1: it names a path and a url, but only one store.").arg(iniFile));
    if (!hasPath && !hasUrl && !ini.IsSilent())
        throw StoreError(
            IniNotReadable,
            Words::tr("Cannot read %1: it has no line path=... or url=... in a section [main].").arg(iniFile));
}

}  // namespace

Place MainPlace(const QString& programFolder) {
    const QDir folder(programFolder);
    const QString iniFile = folder.filePath(u"store.ini"_s);
    const values::IniFile ini = ReadIni(iniFile);
    RequireOneEntry(ini, iniFile);
    if (const QString url = EntryOf(ini, u"url"_s); !url.isEmpty()) return Place::Server(url);
    const QString path = EntryOf(ini, u"path"_s).replace(u'\\', u'/');
    if (path.isEmpty()) return folder.filePath(MainFile);
    const QString target = folder.filePath(path);
    return QFileInfo(target).isDir() ? QDir(target).filePath(MainFile) : target;
}

Place OptionsPlace(const QString& programFolder) {
    return QDir(programFolder).filePath(OptionsFile);
}

std::unique_ptr<Database> OpenMain(const QString& programFolder) {
    return Database::Open(MainPlace(programFolder), MainSchema());
}

std::unique_ptr<Database> OpenOptions(const QString& programFolder) {
    return Database::Open(OptionsPlace(programFolder), OptionsSchema());
}

}  // namespace store
