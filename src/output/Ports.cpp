#include "output/Ports.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QStringDecoder>

#include "output/Channel.h"
#include "output/Folder.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr qint64 LargestPortsFile = 64 * 1024;
constexpr qsizetype LongestEntry = 1000;

// The text of ports.ini, empty when there is none. Editors of other systems save it with two bytes a character.
QString PortsText() {
    QFile file(InProgramFolder(u"ports.ini"_s));
    if (!file.exists()) return {};
    const QString action = u"Cannot read "_s + file.fileName() + u": "_s;
    if (!QFileInfo(file).isFile()) throw OutputError(PathNotAFile, action + u"it is no file."_s);
    if (!file.open(QIODevice::ReadOnly)) throw OutputError(PermissionDenied, action + file.errorString() + u'.');
    const QByteArray bytes = file.read(LargestPortsFile + 1);
    if (bytes.size() > LargestPortsFile) throw OutputError(PathNotAFile, action + u"it is too long."_s);
    const auto encoding = QStringConverter::encodingForData(bytes).value_or(QStringConverter::Utf8);
    return QStringDecoder(encoding)(bytes);
}

// The keys of the section [ports] in small letters, with their values as they stand: QSettings would take commas and
// backslashes apart. Of two equal keys the later one counts.
QHash<QString, QString> PortsEntries() {
    QHash<QString, QString> entries;
    bool inPorts = false;
    for (const QString& rawLine : PortsText().replace(u'\r', u'\n').split(u'\n')) {
        const QString line = rawLine.trimmed();
        if (line.startsWith(u'[')) inPorts = line.compare(u"[ports]", Qt::CaseInsensitive) == 0;
        const qsizetype equals = line.indexOf(u'=');
        if (!inPorts || equals < 0 || line.startsWith(u';') || line.startsWith(u'#')) continue;
        entries[line.left(equals).trimmed().toLower()] = line.mid(equals + 1).trimmed();
    }
    return entries;
}

[[noreturn]] void ThrowBadEntry(const QString& entry) {
    throw OutputError(DeviceUnavailable, u"ports.ini has no printer behind \"%1\"."_s.arg(entry));
}

bool IsYes(const QString& key, const QString& word) {
    const QString known = word.toLower();
    if (known == u"yes" || known == u"1" || known == u"on" || known == u"true") return true;
    if (known.isEmpty() || known == u"no" || known == u"0" || known == u"off" || known == u"false") return false;
    throw OutputError(DeviceUnavailable, u"ports.ini has \"%1\" at %2, which is yes or no."_s.arg(word, key));
}

std::unique_ptr<Sink> OpenNetworkPrinter(const QString& entry, const Port& port) {
    const qsizetype colon = entry.lastIndexOf(u':');
    QString host = entry.mid(4, colon - 4).trimmed();
    bool isNumber = false;
    const ushort number = entry.mid(colon + 1).trimmed().toUShort(&isNumber);
    if (host.startsWith(u'[') && host.endsWith(u']')) host = host.mid(1, host.size() - 2);
    if (!isNumber || number == 0 || host.isEmpty() || host.contains(u'[')) ThrowBadEntry(entry);
    return ConnectTo(host, number, port);
}

// A slip in ports.ini looks as if there were no entry at all.
std::unique_ptr<Sink> OpenUsualDevice(const QString& key, const Port& port) {
    try {
        return OpenDevice(key == u"lpt1" ? u"/dev/lp0"_s : u"/dev/lp1"_s, port);
    } catch (const OutputError& error) {
        throw OutputError(error.Number(),
                          error.Description() + u"\nports.ini has no other printer for "_s + key + u'.');
    }
}

QString BelowFolderUnlessAbsolute(const QString& path) {
    return path.startsWith(u'/') ? path : InProgramFolder(path);
}

}  // namespace

std::unique_ptr<Sink> OpenPortSink(const QString& port) {
    const QString key = port.toLower().remove(u':');
    if (key != u"lpt1" && key != u"lpt2")
        throw OutputError(DeviceUnavailable, u"There is no printer port \"%1\"."_s.arg(port));

    const auto entries = PortsEntries();
    const QString entry = entries.value(key);
    if (entry.contains(QChar(0)) || entry.size() > LongestEntry) ThrowBadEntry(entry.left(40).remove(QChar(0)));
    const QString statusKey = key + u".status"_s;
    const QString status = entries.value(statusKey, entries.value(u"status"_s));
    const Port known{.name = key.toUpper(), .isAsked = IsYes(statusKey, status)};
    if (entry.isEmpty()) return OpenUsualDevice(key, known);
    if (entry.startsWith(u"tcp:", Qt::CaseInsensitive)) return OpenNetworkPrinter(entry, known);
    if (!entry.startsWith(u"file:", Qt::CaseInsensitive)) return OpenDevice(BelowFolderUnlessAbsolute(entry), known);
    const QString path = entry.mid(5).trimmed();
    if (path.isEmpty()) ThrowBadEntry(entry);
    return OpenFileForAppend(BelowFolderUnlessAbsolute(path));
}

}  // namespace output
