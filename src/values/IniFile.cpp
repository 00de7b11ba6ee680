#include "values/IniFile.h"

#include <QFileInfo>
#include <QStringDecoder>

#include "values/FileError.h"
#include "values/Words.h"

using namespace Qt::StringLiterals;

namespace values {

namespace {

constexpr qint64 LargestFile = qint64{64} * 1024;

QString TextOf(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink()) return {};
    QFile file(path);
    if (!info.isFile()) throw FileError(PathFault, Words::tr("Cannot read %1: it is no file.").arg(path));
    const auto throwFailure = [&] {
        throw FileError(NumberOfFailure(file), Words::tr("Cannot read %1: %2.").arg(path, file.errorString()));
    };
    if (!file.open(QIODevice::ReadOnly)) throwFailure();
    const QByteArray bytes = file.read(LargestFile + 1);
    if (file.error() != QFileDevice::NoError) throwFailure();
    if (bytes.size() > LargestFile) throw FileError(PathFault, Words::tr("Cannot read %1: it is too long.").arg(path));
    const auto encoding = QStringConverter::encodingForData(bytes).value_or(QStringConverter::Utf8);
    return QStringDecoder(encoding)(bytes);
}

// A bracket separates them: a section's name cannot have one.
QString NameOf(QStringView section, QStringView key) {
    return section.trimmed().toString().toLower() + u']' + key.trimmed().toString().toLower();
}

}  // namespace

IniFile IniFile::Read(const QString& path) {
    IniFile ini;
    QString section;
    int number = 0;
    for (const QString& rawLine : TextOf(path).replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').split(u'\n')) {
        ++number;
        const QString line = rawLine.trimmed();
        if (line.isEmpty() || line.startsWith(u';') || line.startsWith(u'#')) continue;
        if (line.startsWith(u'[') && line.endsWith(u']')) {
            section = line.sliced(1, line.size() - 2);
            continue;
        }
        ini.isSilent_ = false;
        // A head that is not closed is that of a section which nobody asks for.
        if (line.startsWith(u'[')) section = line;
        const qsizetype equals = line.indexOf(u'=');
        if (equals <= 0) continue;
        ini.keys_.append({section.trimmed(), line.first(equals).trimmed(), number});
        ini.entries_[NameOf(section, line.first(equals))] = {line.sliced(equals + 1).trimmed(), number};
    }
    return ini;
}

std::optional<IniFile::Value> IniFile::Find(const QString& section, const QString& key) const {
    const auto value = entries_.constFind(NameOf(section, key));
    return value == entries_.cend() ? std::nullopt : std::optional(*value);
}

std::optional<QString> IniFile::Entry(const QString& section, const QString& key) const {
    const auto value = Find(section, key);
    return value ? std::optional(value->text) : std::nullopt;
}

}  // namespace values
