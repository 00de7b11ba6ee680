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

// The most likely one first.
const QStringList& OtherScripts() {
    static const QStringList pages{u"windows-1251"_s, u"windows-1253"_s, u"KOI8-R"_s};
    return pages;
}

using Detector = std::unique_ptr<UCharsetDetector, decltype(&ucsdet_close)>;
using Converter = std::unique_ptr<UConverter, decltype(&ucnv_close)>;

bool IsLatinLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// The pages of one half of Europe hold the German letters at the same places, and differ in the others: which of them
// are there tells more than the detector, which does not know every language of the region.
QString LatinPage(const QByteArray& bytes) {
    // Not Č and č, which the others have as È and è.
    constexpr QByteArrayView central("\x8A\x8E\x9A\x9E\xC6\xD0\xE6\xF0");              // Š Ž š ž Ć Đ ć đ
    constexpr QByteArrayView centralIso("\xA9\xAE\xB9\xBE");                           // Š Ž š ž
    constexpr QByteArrayView western("\xC0\xCA\xD1\xD2\xD9\xE0\xEA\xF1\xF2\xF9\xFB");  // À Ê Ñ Ò Ù à ê ñ ò ù û
    qsizetype ofCentral = 0, ofIso = 0, ofWestern = 0;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        ofCentral += central.contains(bytes[i]);
        ofWestern += western.contains(bytes[i]);
        // Signs in the other pages, and never within a word.
        ofIso += centralIso.contains(bytes[i]) && i + 1 < bytes.size() && IsLatinLetter(bytes[i + 1]);
    }
    if (ofWestern > ofCentral + ofIso) return u"windows-1252"_s;
    return ofIso > 0 && !bytes.contains('\x9A') && !bytes.contains('\x9E') ? u"ISO-8859-2"_s : UsualPage;
}

// Other scripts have words of such letters, Latin ones a letter here and there.
bool IsLatin(const QByteArray& bytes) {
    const auto isHigh = [&](qsizetype i) { return i >= 0 && i < bytes.size() && (bytes[i] & 0x80) != 0; };
    qsizetype alone = 0, beside = 0;
    for (qsizetype i = 0; i < bytes.size(); ++i)
        if (isHigh(i)) ++(isHigh(i - 1) || isHigh(i + 1) ? beside : alone);
    return beside <= alone;
}

QString PageOf(const QByteArray& bytes) {
    const QByteArray head = bytes.first(std::min(bytes.size(), LookedAt));
    if (IsLatin(head)) return LatinPage(head);
    UErrorCode status = U_ZERO_ERROR;
    const Detector detector(ucsdet_open(&status), ucsdet_close);
    ucsdet_setText(detector.get(), head.constData(), static_cast<int32_t>(head.size()), &status);
    int32_t count = 0;
    const UCharsetMatch** matches = ucsdet_detectAll(detector.get(), &count, &status);
    for (int32_t i = 0; U_SUCCESS(status) && i < count; ++i) {
        const QString name = QString::fromLatin1(ucsdet_getName(matches[i], &status));
        if (OtherScripts().contains(name)) return name;
    }
    return OtherScripts().first();
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
    return QStringList{Utf8,       Utf16Low, Utf16High, UsualPage, u"windows-1252"_s, u"ISO-8859-2"_s, u"ISO-8859-15"_s,
                       u"IBM852"_s} +
           OtherScripts();
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
