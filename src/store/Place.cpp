#include "store/Place.h"

#include <QUrl>

#include "store/StoreError.h"

using namespace Qt::StringLiterals;

namespace store {

namespace {

const auto UsualSchema = u"velton"_s;

bool BeginsAsAddress(const QString& text) {
    return text.startsWith(u"postgresql://"_s) || text.startsWith(u"postgres://"_s);
}

[[noreturn]] void ThrowNoAddress() {
    throw StoreError(IniNotReadable,
                     u"The address of the server is not of the form postgresql://USER@HOST/DATABASE?schema=NAME."_s);
}

}  // namespace

bool Place::IsServerAddress(const QString& text) {
    return BeginsAsAddress(text);
}

// The library's own words about a bad address may repeat a password.
Place Place::Server(const QString& address) {
    if (!BeginsAsAddress(address) || address.contains(QChar::Null)) ThrowNoAddress();
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
        constexpr int longestName = 63;
        if (place.schema_.isEmpty() || place.schema_.toUtf8().size() > longestName) ThrowNoAddress();
    }
    if (!others.isEmpty()) place.address_ += u'?' + others.join(u'&');
    return place;
}

QString Place::Shown() const {
    if (!IsServer()) return path_;
    const QString behindUser = address_.section(u'?', 0, 0).section(u"://"_s, 1).section(u'@', -1);
    return u"%1 (%2)"_s.arg(behindUser.startsWith(u'/') ? behindUser.sliced(1) : behindUser, schema_);
}

}  // namespace store
