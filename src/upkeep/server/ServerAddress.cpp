#include "upkeep/server/ServerAddress.h"

#include <QUrl>
#include <QUrlQuery>

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

using Encryption = ServerAddress::Encryption;

// The words of the client library; what it does without one is to take encryption where it is offered.
const std::pair<Encryption, QString> Modes[] = {{Encryption::Always, u"require"_s},
                                                {Encryption::Checked, u"verify-full"_s}};

QString InUrl(const QString& text) {
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

QString FromUrl(const QString& text) {
    return QUrl::fromPercentEncoding(text.toUtf8());
}

bool IsFolder(const QString& host) {
    return host.startsWith(u'/');
}

}  // namespace

QString ServerAddress::Url() const {
    QStringList parameters;
    if (IsFolder(host)) parameters << u"host="_s + InUrl(host);
    for (const auto& [mode, word] : Modes)
        if (mode == encryption) parameters << u"sslmode="_s + word;
    if (schema != ServerAddress().schema) parameters << u"schema="_s + InUrl(schema);
    return u"postgresql://%1@%2/%3"_s.arg(InUrl(user), IsFolder(host) ? QString() : host, InUrl(database)) +
           (parameters.isEmpty() ? QString() : u'?' + parameters.join(u'&'));
}

ServerAddress ServerAddress::Of(const store::Place& place) {
    const QString behindScheme = place.Address().section(u"://"_s, 1);
    const QString path = behindScheme.section(u'?', 0, 0);
    const QString authority = path.section(u'/', 0, 0);
    const QUrlQuery parameters(behindScheme.section(u'?', 1));
    ServerAddress address;
    address.host = authority.section(u'@', -1);
    if (authority.contains(u'@')) address.user = FromUrl(authority.section(u'@', 0, -2));
    if (path.contains(u'/')) address.database = FromUrl(path.section(u'/', 1));
    if (address.host.isEmpty()) address.host = parameters.queryItemValue(u"host"_s, QUrl::FullyDecoded);
    address.schema = place.SchemaName();
    address.encryption = Encryption::WhenOffered;
    for (const auto& [mode, word] : Modes)
        if (parameters.queryItemValue(u"sslmode"_s) == word) address.encryption = mode;
    return address;
}

}  // namespace upkeep
