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

QByteArray Read(const QString& path) {
    QFile file(path);
    if (!file.exists()) return {};
    if (!file.open(QIODevice::ReadOnly)) throw values::FileError(file, values::FileWork::Reading);
    const QByteArray content = file.readAll();
    return content.isNull() ? QByteArray("") : content;
}

void Write(const QString& path, const QByteArray& content) {
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) &&
                           file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) &&
                           file.write(content) == content.size() && file.commit();
    if (!isWritten) throw values::FileError(file, values::FileWork::Writing);
}

}  // namespace

QByteArray KeepPassword(const ServerAddress& address, const QString& password) {
    QByteArray before = Read(PasswordFile());
    QByteArrayList lines = before.split('\n');
    if (lines.last().isEmpty()) lines.removeLast();
    for (const QString& host : address.host.split(u',')) {
        const QByteArray prefix = PrefixFor(address, host);
        lines.removeIf([&prefix](const QByteArray& line) { return line.startsWith(prefix); });
        lines.prepend(prefix + Field(password));  // the first line that serves counts
    }
    Write(PasswordFile(), lines.join('\n') + '\n');
    return before;
}

void PutPasswordsBack(const QByteArray& before) {
    before.isNull() ? void(QFile::remove(PasswordFile())) : Write(PasswordFile(), before);
}

}  // namespace upkeep
