#include "store/Place.h"

#include <QRegularExpression>
#include <QUrl>

#include "store/StoreError.h"
#include "store/Words.h"

using namespace Qt::StringLiterals;

namespace store {

namespace {

const auto UsualSchema = u"velton"_s;

bool BeginsAsAddress(const QString& text) {
    return text.startsWith(u"postgresql://"_s) || text.startsWith(u"postgres://"_s);
}

[[noreturn]] void ThrowNoAddress() {
    throw StoreError(
        IniNotReadable,
        Words::tr("The address of the server is not of the form postgresql://USER@HOST/DATABASE?schema=NAME."));
}

// A password would show in messages, in the list of processes and in copies of the ini.
void RefusePassword(const QString& address) {
    const QString authority = address.section(u"://"_s, 1).section(u'/', 0, 0).section(u'?', 0, 0);
    const QString user = authority.contains(u'@') ? authority.section(u'@', 0, -2) : QString();
    static const QRegularExpression hosts(u"^((\\[[0-9a-fA-F:.]+\\]|[^\\[\\]:,@]*)(:[0-9]+)?(,|$))*$"_s);
    const bool hasPassword = user.contains(u':') || user.contains(u'@') ||
                             QUrl::fromPercentEncoding(address.toUtf8()).contains(u"password="_s);
    if (hasPassword)
        throw StoreError(
            IniNotReadable,
            Words::tr("A password does not belong into the address of the server; its place is ~/.pgpass."));
    if (!hosts.match(authority.section(u'@', -1)).hasMatch()) ThrowNoAddress();
}

bool IsOwnSchema(const QString& name) {
    constexpr int longestName = 63;
    // The server would take the role's name for the last.
    const bool isServers = name == u"public" || name.startsWith(u"pg_") || name == u"$user";
    return !name.isEmpty() && name.toUtf8().size() <= longestName && !isServers;
}

}  // namespace

Place Place::Server(const QString& address) {
    if (!BeginsAsAddress(address) || address.contains(QChar::Null) || address.contains(u'\n')) ThrowNoAddress();
    RefusePassword(address);
    Place place{QString()};
    place.schema_ = UsualSchema;
    place.address_ = address.section(u'?', 0, 0);
    QStringList others;
    for (const QString& parameter : address.section(u'?', 1).split(u'&', Qt::SkipEmptyParts)) {
        if (!parameter.startsWith(u"schema="_s)) {
            others += parameter;
            continue;
        }
        place.schema_ = QUrl::fromPercentEncoding(parameter.section(u'=', 1).toUtf8());
        if (!IsOwnSchema(place.schema_)) ThrowNoAddress();
    }
    if (!others.isEmpty()) place.address_ += u'?' + others.join(u'&');
    return place;
}

Place Place::WithSchema(const QString& name) const {
    Place place = *this;
    place.schema_ = name;
    return place;
}

QString Place::Shown() const {
    if (!IsServer()) return path_;
    QString behindUser = address_.section(u'?', 0, 0).section(u"://"_s, 1).section(u'@', -1);
    if (behindUser.startsWith(u'/')) behindUser.remove(0, 1);
    return behindUser.isEmpty() ? schema_ : u"%1 (%2)"_s.arg(behindUser, schema_);  // a service file may say the rest
}

}  // namespace store
