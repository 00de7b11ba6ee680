#include "store/StorePath.h"

#include <QDir>
#include <QFile>

#include "store/StoreError.h"

using namespace Qt::StringLiterals;

namespace store {

namespace {

constexpr int CannotRead = 3051;

QString Unquoted(QString text) {
    const bool quoted = text.size() >= 2 && text.startsWith(u'"') && text.endsWith(u'"');
    return quoted ? text.sliced(1, text.size() - 2) : text;
}

// Read by hand: the usual reader of such files takes a comma for a list and a backslash for an escape.
QString PathInIni(const QString& iniFile) {
    QFile ini(iniFile);
    if (!ini.exists()) return {};
    if (!ini.open(QIODevice::ReadOnly | QIODevice::Text))
        throw StoreError(CannotRead, u"Cannot read '%1': %2"_s.arg(iniFile, ini.errorString()));
    QString section;
    for (const QString& raw : QString::fromUtf8(ini.readAll()).split(u'\n')) {
        const QString line = raw.trimmed();
        if (line.startsWith(u'[') && line.endsWith(u']')) section = line.sliced(1, line.size() - 2).trimmed();
        const qsizetype equals = line.indexOf(u'=');
        const bool ours = section.compare(u"main", Qt::CaseInsensitive) == 0 && equals > 0 &&
                          line.first(equals).trimmed().compare(u"path", Qt::CaseInsensitive) == 0;
        if (ours) return Unquoted(line.sliced(equals + 1).trimmed()).replace(u'\\', u'/');
    }
    return {};
}

}  // namespace

QString MainStorePath(const QString& programFolder) {
    const QDir folder(programFolder);
    const QString path = PathInIni(folder.filePath(u"store.ini"_s));
    if (path.isEmpty()) return folder.filePath(u"ORVA.pos"_s);
    const QString target = folder.filePath(path);
    return QFileInfo(target).isDir() ? QDir(target).filePath(u"ORVA.pos"_s) : target;
}

QString OptionsStorePath(const QString& programFolder) {
    return QDir(programFolder).filePath(u"opt.pos"_s);
}

}  // namespace store
