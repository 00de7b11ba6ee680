#include "output/Ports.h"

#include "output/Channel.h"
#include "output/Folder.h"
#include "values/FileError.h"
#include "values/IniFile.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr qsizetype LongestEntry = 1000;

values::IniFile PortsIni() {
    try {
        return values::IniFile::Read(InProgramFolder(u"ports.ini"_s));
    } catch (const values::FileError& error) {
        throw OutputError(error.Number(), error.Description());
    }
}

[[noreturn]] void ThrowBadEntry(const QString& entry) {
    throw OutputError(values::DeviceUnavailable, u"ports.ini has no printer behind \"%1\"."_s.arg(entry));
}

bool IsYes(const QString& key, const QString& word) {
    const QString known = word.toLower();
    if (known == u"yes" || known == u"1" || known == u"on" || known == u"true") return true;
    if (known.isEmpty() || known == u"no" || known == u"0" || known == u"off" || known == u"false") return false;
    throw OutputError(values::DeviceUnavailable, u"ports.ini has \"%1\" at %2, which is yes or no."_s.arg(word, key));
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

PortEntry EntryOf(const QString& port) {
    const QString key = port.toLower().remove(u':');
    if (key != u"lpt1" && key != u"lpt2")
        throw OutputError(values::DeviceUnavailable, u"There is no printer port \"%1\"."_s.arg(port));
    const auto ini = PortsIni();
    const QString where = ini.Entry(u"ports"_s, key).value_or(QString());
    if (where.contains(QChar(0)) || where.size() > LongestEntry) ThrowBadEntry(where.left(40).remove(QChar(0)));
    const QString statusKey = key + u".status"_s;
    const QString status =
        ini.Entry(u"ports"_s, statusKey).value_or(ini.Entry(u"ports"_s, u"status"_s).value_or(QString()));
    return {.key = key, .where = where, .isAsked = IsYes(statusKey, status)};
}

std::unique_ptr<Sink> OpenSink(const PortEntry& entry) {
    const Port known{.name = entry.key.toUpper(), .isAsked = entry.isAsked};
    if (entry.where.isEmpty()) return OpenUsualDevice(entry.key, known);
    if (entry.where.startsWith(u"tcp:", Qt::CaseInsensitive)) return OpenNetworkPrinter(entry.where, known);
    if (!entry.where.startsWith(u"file:", Qt::CaseInsensitive))
        return OpenDevice(BelowFolderUnlessAbsolute(entry.where), known);
    const QString path = entry.where.mid(5).trimmed();
    if (path.isEmpty()) ThrowBadEntry(entry.where);
    return OpenFileForAppend(BelowFolderUnlessAbsolute(path));
}

}  // namespace output
