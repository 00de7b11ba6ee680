#include <QDir>
#include <QFile>
#include <QSaveFile>

#include "upkeep/server/ServerAddress.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

QString PasswordFile() {
    const QString named = qEnvironmentVariable("PGPASSFILE");
    return named.isEmpty() ? QDir::home().filePath(u".pgpass"_s) : named;
}

QByteArray Field(const QString& text) {
    return QString(text).replace(u'\\', u"\\\\"_s).replace(u':', u"\\:"_s).toUtf8();
}

// Where a line of the file is for: all of it but the password. The library knows its usual socket as "localhost".
QByteArray PrefixFor(const ServerAddress& address, const QString& host) {
    QString name = host == u"/var/run/postgresql" ? u"localhost"_s : host;
    QString port = u"5432"_s;
    if (const qsizetype colon = name.lastIndexOf(u':'); colon > name.lastIndexOf(u']') && !name.startsWith(u'/')) {
        port = name.sliced(colon + 1);
        name.truncate(colon);
    }
    name.remove(u'[').remove(u']');
    return QByteArrayList{Field(name), Field(port), Field(address.database), Field(address.user), {}}.join(':');
}

QByteArrayList LinesOf(const QString& path) {
    QFile file(path);
    if (!file.exists()) return {};
    if (!file.open(QIODevice::ReadOnly)) throw values::FileError(file, values::FileWork::Reading);
    QByteArrayList lines = file.readAll().split('\n');
    if (lines.last().isEmpty()) lines.removeLast();
    return lines;
}

}  // namespace

void KeepPassword(const ServerAddress& address, const QString& password) {
    const QString path = PasswordFile();
    QByteArrayList lines = LinesOf(path);
    for (const QString& host : address.host.split(u',')) {
        const QByteArray prefix = PrefixFor(address, host);
        lines.removeIf([&prefix](const QByteArray& line) { return line.startsWith(prefix); });
        lines.prepend(prefix + Field(password));  // the first line that serves counts
    }
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) &&
                           file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) &&
                           file.write(lines.join('\n') + '\n') > 0 && file.commit();
    if (!isWritten) throw values::FileError(file, values::FileWork::Writing);
}

}  // namespace upkeep
