#include "upkeep/server/ServerAddress.h"

#include <QUrl>
#include <QUrlQuery>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

using Encryption = ServerAddress::Encryption;

// The words of the client library, the first of a kind to be written; what it does without one is to take encryption
// where it is offered.
const std::pair<Encryption, QString> Modes[] = {
    {Encryption::Always, u"require"_s}, {Encryption::Checked, u"verify-full"_s}, {Encryption::Checked, u"verify-ca"_s}};

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
    const auto* mode = std::ranges::find(Modes, encryption, &std::pair<Encryption, QString>::first);
    if (mode != std::end(Modes)) parameters << u"sslmode="_s + mode->second;
    if (schema != ServerAddress().schema) parameters << u"schema="_s + InUrl(schema);
    return u"postgresql://%1@%2/%3"_s.arg(InUrl(user), IsFolder(host) ? QString() : host, InUrl(database)) +
           (parameters.isEmpty() ? QString() : u'?' + parameters.join(u'&'));
}

ServerAddress ServerAddress::Of(const store::Place& place) {
    const QString behindScheme = place.Address().section(u"://"_s, 1);
    const QString path = behindScheme.section(u'?', 0, 0);
    const QString authority = path.section(u'/', 0, 0);
    const QUrlQuery parameters(behindScheme.section(u'?', 1));
    // What may stand in its place or behind the "?".
    const auto said = [&parameters](const QString& inPlace, const QString& name) {
        return inPlace.isEmpty() ? parameters.queryItemValue(name, QUrl::FullyDecoded) : inPlace;
    };
    ServerAddress address{.host = said(authority.section(u'@', -1), u"host"_s),
                          .database = said(FromUrl(path.section(u'/', 1)), u"dbname"_s),
                          .user = said(FromUrl(authority.section(u'@', 0, -2)), u"user"_s),
                          .schema = place.SchemaName(),
                          .encryption = Encryption::WhenOffered};
    for (const auto& [mode, word] : Modes)
        if (parameters.queryItemValue(u"sslmode"_s) == word) address.encryption = mode;
    return address;
}

}  // namespace upkeep
