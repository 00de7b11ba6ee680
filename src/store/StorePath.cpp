#include "store/StorePath.h"

#include <QDir>
#include <QFile>
#include <QStringDecoder>

#include "store/StoreError.h"

using namespace Qt::StringLiterals;

namespace store {

namespace {

constexpr int CannotRead = 3051;
constexpr qint64 LargestIni = 64 * 1024;

QString Unquoted(QString text) {
    const bool quoted = text.size() >= 2 && text.startsWith(u'"') && text.endsWith(u'"');
    return quoted ? text.sliced(1, text.size() - 2) : text;
}

[[noreturn]] void ThrowUnreadable(const QString& iniFile, const QString& why) {
    throw StoreError(CannotRead, u"Cannot read %1: %2."_s.arg(iniFile, why));
}

// Empty when there is no such file. Editors of other systems save it with two bytes a character.
QString TextOf(const QString& iniFile) {
    const QFileInfo info(iniFile);
    if (!info.exists() && !info.isSymLink()) return {};
    if (!info.isFile()) ThrowUnreadable(iniFile, u"it is no file"_s);
    QFile ini(iniFile);
    if (!ini.open(QIODevice::ReadOnly)) ThrowUnreadable(iniFile, ini.errorString());
    const QByteArray bytes = ini.read(LargestIni + 1);
    if (bytes.size() > LargestIni) ThrowUnreadable(iniFile, u"it is too long"_s);
    return QStringDecoder(QStringConverter::encodingForData(bytes).value_or(QStringConverter::Utf8))(bytes);
}

// Read by hand: the usual reader of such files takes a comma for a list and a backslash for an escape. A file that says
// something, but no path, is an error: a register must not sell into another store than its own for a slip.
QString PathInIni(const QString& iniFile) {
    QString section;
    bool isSilent = true;
    for (const QString& raw : TextOf(iniFile).replace(u'\r', u'\n').split(u'\n')) {
        const QString line = raw.trimmed();
        if (line.isEmpty() || line.startsWith(u';') || line.startsWith(u'#')) continue;
        const bool isHead = line.startsWith(u'[') && line.endsWith(u']');
        if (isHead) section = line.sliced(1, line.size() - 2).trimmed();
        const qsizetype equals = line.indexOf(u'=');
        const bool ours = section.compare(u"main", Qt::CaseInsensitive) == 0 && equals > 0 &&
                          line.first(equals).trimmed().compare(u"path", Qt::CaseInsensitive) == 0;
        if (ours) return Unquoted(line.sliced(equals + 1).trimmed()).replace(u'\\', u'/');
        isSilent = isSilent && isHead;
    }
    if (!isSilent) ThrowUnreadable(iniFile, u"it has no line path=... in a section [main]"_s);
    return {};
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
