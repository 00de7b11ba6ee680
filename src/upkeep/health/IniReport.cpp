#include "upkeep/health/IniReport.h"

#include <QDir>
#include <QRegularExpression>

#include "values/Error.h"
#include "values/IniFile.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

// Keys as "section.key".
struct File {
    QString name;
    QStringList told;   // with their values
    QStringList known;  // as being set
};

const QList<File> Files{
    {u"velton.ini"_s,
     {u"till.sound"_s, u"till.contrast"_s, u"backup.days"_s, u"backup.weeks"_s, u"backup.months"_s},
     {u"heading.name"_s, u"heading.address"_s, u"heading.ident"_s, u"heading.phone"_s, u"backup.folder"_s}},
    {u"ports.ini"_s,
     {u"ports.lpt1"_s, u"ports.lpt2"_s, u"ports.lpt1.status"_s, u"ports.lpt2.status"_s, u"ports.status"_s},
     {}},
    {u"store.ini"_s, {u"main.url"_s}, {u"main.path"_s}},
};

// Whatever somebody typed there, only what can't be a name.
QString ToldValue(const QString& value) {
    static const QRegularExpression plain(
        u"^(?:yes|no|on|off|true|false|usual|high|dark|\\d{1,3}|/dev/(?:usb/)?lp\\d)$"_s,
        QRegularExpression::CaseInsensitiveOption);
    if (plain.match(value).hasMatch()) return value;
    if (value.startsWith(u"tcp:"_s, Qt::CaseInsensitive)) return u"tcp:(address)"_s;
    if (value.startsWith(u"file:"_s, Qt::CaseInsensitive)) return u"file:(name)"_s;
    if (value.contains(u"://"_s)) return u"(the address of a server)"_s;
    return u"(set)"_s;
}

QStringList LinesOf(const File& file, const QString& path) {
    QStringList lines;
    int others = 0;
    const auto ini = values::IniFile::Read(path);
    for (const auto& key : ini.Keys()) {
        const QString name = (key.section + u'.' + key.name).toLower();
        const bool isTold = file.told.contains(name);
        if (!isTold && !file.known.contains(name)) {
            ++others;
            continue;
        }
        const QString value = ini.Entry(key.section, key.name).value_or(QString());
        lines << u"%1, [%2] %3 = %4"_s.arg(file.name, key.section.toLower(), key.name.toLower(),
                                           value.isEmpty() ? u"(empty)"_s
                                           : isTold        ? ToldValue(value)
                                                           : u"(set)"_s);
    }
    if (others > 0) lines << u"%1, other entries: %2"_s.arg(file.name).arg(others);
    return lines;
}

}  // namespace

QStringList IniReport(const QString& folder) {
    QStringList lines;
    for (const File& file : Files) {
        const QString path = QDir(folder).filePath(file.name);
        if (!QFileInfo::exists(path)) {
            lines << u"%1: there is none"_s.arg(file.name);
            continue;
        }
        try {
            lines += LinesOf(file, path);
        } catch (const values::Error& error) {
            lines << u"%1: error %2 when it is read"_s.arg(file.name).arg(error.Number());
        }
    }
    return lines;
}

}  // namespace upkeep
