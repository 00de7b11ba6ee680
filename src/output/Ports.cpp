#include "output/Ports.h"

#include <QFile>

#include "output/Channel.h"
#include "output/Folder.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {

// The value of a key in the section [ports], as it stands: QSettings would take commas and backslashes apart.
QString PortsEntry(const QString& key) {
    QFile file(InProgramFolder(u"ports.ini"_s));
    if (!file.exists()) return {};
    if (!file.open(QIODevice::ReadOnly))
        throw OutputError(PermissionDenied, u"Cannot read "_s + file.fileName() + u": "_s + file.errorString());
    bool inPorts = false;
    QString value;
    for (const QString& rawLine : QString::fromUtf8(file.readAll()).split(u'\n')) {
        const QString line = rawLine.trimmed();
        if (line.startsWith(u'[')) inPorts = line.compare(u"[ports]", Qt::CaseInsensitive) == 0;
        const qsizetype equals = line.indexOf(u'=');
        if (!inPorts || equals < 0 || line.startsWith(u';') || line.startsWith(u'#')) continue;
        if (line.left(equals).trimmed().compare(key, Qt::CaseInsensitive) == 0) value = line.mid(equals + 1).trimmed();
    }
    return value;
}

[[noreturn]] void ThrowBadEntry(const QString& entry) {
    throw OutputError(DeviceUnavailable, u"ports.ini has no printer behind \"%1\"."_s.arg(entry));
}

std::unique_ptr<Sink> OpenNetworkPrinter(const QString& entry) {
    const qsizetype colon = entry.lastIndexOf(u':');
    QString host = entry.mid(4, colon - 4).trimmed();
    bool isNumber = false;
    const ushort port = entry.mid(colon + 1).trimmed().toUShort(&isNumber);
    if (host.startsWith(u'[') && host.endsWith(u']')) host = host.mid(1, host.size() - 2);
    if (!isNumber || port == 0 || host.isEmpty()) ThrowBadEntry(entry);
    return ConnectTo(host, port);
}

QString BelowFolderUnlessAbsolute(const QString& path) {
    return path.startsWith(u'/') ? path : InProgramFolder(path);
}

}  // namespace

std::unique_ptr<Sink> OpenPortSink(const QString& port) {
    const QString key = port.toLower().remove(u':');
    if (key != u"lpt1" && key != u"lpt2")
        throw OutputError(DeviceUnavailable, u"There is no printer port \"%1\"."_s.arg(port));

    const QString entry = PortsEntry(key);
    if (entry.isEmpty()) return OpenDevice(key == u"lpt1" ? u"/dev/lp0"_s : u"/dev/lp1"_s);
    if (entry.startsWith(u"tcp:", Qt::CaseInsensitive)) return OpenNetworkPrinter(entry);
    if (!entry.startsWith(u"file:", Qt::CaseInsensitive)) return OpenDevice(BelowFolderUnlessAbsolute(entry));
    const QString path = entry.mid(5).trimmed();
    if (path.isEmpty()) ThrowBadEntry(entry);
    return OpenFileForAppend(BelowFolderUnlessAbsolute(path));
}

}  // namespace output
