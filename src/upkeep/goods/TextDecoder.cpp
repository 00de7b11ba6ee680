#include "upkeep/goods/TextDecoder.h"

#include <unicode/ucnv.h>
#include <unicode/ucsdet.h>

#include <algorithm>
#include <memory>

#include "upkeep/Words.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

const auto Utf8 = u"UTF-8"_s, Utf16Low = u"UTF-16LE"_s, Utf16High = u"UTF-16BE"_s;
// Where letters speak for nothing known.
const auto UsualPage = u"windows-1250"_s;
constexpr qsizetype LookedAt = qsizetype{64} * 1024;

using Detector = std::unique_ptr<UCharsetDetector, decltype(&ucsdet_close)>;
using Converter = std::unique_ptr<UConverter, decltype(&ucnv_close)>;

// The pages of ISO hold the letters of those beside them at the same places, but for a few; spreadsheets write the
// latter.
QString PageFor(const QString& found) {
    if (found == u"ISO-8859-1") return u"windows-1252"_s;
    return KnownEncodings().contains(found) ? found : QString();
}

QString PageOf(const QByteArray& bytes) {
    UErrorCode status = U_ZERO_ERROR;
    const Detector detector(ucsdet_open(&status), ucsdet_close);
    const QByteArray head = bytes.first(std::min(bytes.size(), LookedAt));
    ucsdet_setText(detector.get(), head.constData(), static_cast<int32_t>(head.size()), &status);
    int32_t count = 0;
    const UCharsetMatch** matches = ucsdet_detectAll(detector.get(), &count, &status);
    if (U_FAILURE(status)) return UsualPage;
    for (int32_t i = 0; i < count; ++i) {
        const char* name = ucsdet_getName(matches[i], &status);
        if (const QString page = PageFor(QString::fromLatin1(name)); !page.isEmpty()) return page;
    }
    return UsualPage;
}

// Where every second byte of Latin text is a zero.
QString WideByZeros(const QByteArray& bytes) {
    const qsizetype length = std::min(bytes.size(), LookedAt) & ~qsizetype{1};
    qsizetype even = 0, odd = 0;
    for (qsizetype i = 0; i < length; i += 2) {
        even += bytes[i] == '\0';
        odd += bytes[i + 1] == '\0';
    }
    const qsizetype most = length / 2 * 7 / 10;
    if (length > 0 && odd > most && even == 0) return Utf16Low;
    if (length > 0 && even > most && odd == 0) return Utf16High;
    return {};
}

}  // namespace

QStringList KnownEncodings() {
    return {Utf8,
            Utf16Low,
            Utf16High,
            UsualPage,
            u"windows-1252"_s,
            u"windows-1251"_s,
            u"ISO-8859-2"_s,
            u"ISO-8859-15"_s,
            u"IBM852"_s};
}

QString GuessEncoding(const QByteArray& bytes) {
    if (bytes.startsWith("\xEF\xBB\xBF")) return Utf8;
    if (bytes.startsWith("\xFF\xFE")) return Utf16Low;
    if (bytes.startsWith("\xFE\xFF")) return Utf16High;
    if (const QString wide = WideByZeros(bytes); !wide.isEmpty()) return wide;
    return bytes.isValidUtf8() ? Utf8 : PageOf(bytes);
}

QString DecodeText(const QByteArray& bytes, const QString& encoding) {
    UErrorCode status = U_ZERO_ERROR;
    const Converter converter(ucnv_open(encoding.toLatin1().constData(), &status), ucnv_close);
    if (encoding.isEmpty() || U_FAILURE(status))
        throw values::FileError(
            values::InvalidCall,
            Words::tr("No encoding is called '%1'. Known are: %2.").arg(encoding, KnownEncodings().join(u", ")));
    ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
    // No encoding gives more units than it has bytes, but for a few that give two.
    QString text(bytes.size() * 2 + 1, Qt::Uninitialized);
    const int32_t length =
        ucnv_toUChars(converter.get(), reinterpret_cast<UChar*>(text.data()), static_cast<int32_t>(text.size()),
                      bytes.constData(), static_cast<int32_t>(bytes.size()), &status);
    if (U_FAILURE(status))
        throw values::FileError(
            values::PathFault,
            Words::tr("The file is not in the encoding %1: some of its bytes stand for no letter.").arg(encoding));
    text.resize(length);
    if (text.startsWith(QChar::ByteOrderMark)) text.remove(0, 1);
    text.squeeze();
    return text;
}

}  // namespace upkeep
