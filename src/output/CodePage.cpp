#include "output/CodePage.h"

#include <QRegularExpression>
#include <algorithm>
#include <array>

#include <iconv.h>

#include "output/Channel.h"
#include "output/Words.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {

// A code page by its 256 characters; a byte without a character stands for the control code of its number.
struct CodePage {
    explicit CodePage(const char* name);
    std::array<char16_t, 256> characters;
    std::array<char, 0x10000> bytes;  // "?" for what the page lacks
};

CodePage::CodePage(const char* name) {
    const iconv_t converter = iconv_open("UTF-16LE", name);
    if (converter == reinterpret_cast<iconv_t>(-1))
        throw OutputError(values::DeviceUnavailable,
                          Words::tr("This system lacks the code page %1.").arg(QLatin1StringView(name)));
    bytes.fill('?');
    for (size_t code = 0; code < characters.size(); ++code) {
        char in = static_cast<char>(code);
        uchar out[4] = {};
        char* from = &in;
        char* to = reinterpret_cast<char*>(out);
        size_t inLeft = 1;
        size_t outLeft = sizeof out;
        const bool known = iconv(converter, &from, &inLeft, &to, &outLeft) != static_cast<size_t>(-1);
        characters[code] = static_cast<char16_t>(known ? out[0] | out[1] << 8 : code);
        bytes[characters[code]] = static_cast<char>(code);
    }
    iconv_close(converter);
}

const CodePage& CentralPage() {
    static const CodePage page("CP1250");
    return page;
}

const CodePage& WesternPage() {
    static const CodePage page("CP1252");
    return page;
}

const CodePage& UserPage() {
    static QString known;
    static const CodePage* page = nullptr;
    if (page && known == values::UserLocaleName()) return *page;
    known = values::UserLocaleName();
    // Numbers may follow another locale than texts, and either may be all that tells the language.
    const bool isCentral = IsCentralEuropean(known) || IsCentralEuropean(values::UserLocale().bcp47Name());
    page = isCentral ? &CentralPage() : &WesternPage();
    return *page;
}

// The UTF-16 units of the sign that begins there.
qsizetype SignAt(QStringView text, qsizetype at) {
    const bool isPair = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
    return isPair ? 2 : 1;
}

QString Decoded(const QByteArray& bytes, const CodePage& page) {
    QString result;
    result.reserve(bytes.size());
    for (const char byte : bytes) result += QChar(page.characters[static_cast<uchar>(byte)]);
    return result;
}

}  // namespace

bool IsCentralEuropean(QStringView locale) {
    static const QRegularExpression partEnd(u"[_.@-]"_s);
    const QStringList parts = locale.toString().toLower().split(partEnd);
    const auto says = [&](QStringView end) {
        return std::ranges::any_of(parts, [&](const QString& part) { return part.endsWith(end); });
    };
    static const QStringList always{u"hr"_s, u"sl"_s, u"cs"_s, u"sk"_s, u"pl"_s, u"hu"_s, u"ro"_s, u"sq"_s};
    static const QStringList unlessCyrillic{u"bs"_s, u"sh"_s, u"hbs"_s, u"cnr"_s, u"me"_s};
    const QString& language = parts.first();
    if (always.contains(language)) return true;
    const bool isCyrillic = says(u"cyrl") || says(u"cyrillic");
    if (unlessCyrillic.contains(language)) return !isCyrillic;
    // Serbian is written in Cyrillic letters unless it is said otherwise, or spoken in Montenegro.
    return language == u"sr" && !isCyrillic && (says(u"latn") || says(u"latin") || parts.contains(u"me"));
}

void AppendInCodePage(QByteArray& bytes, QStringView text) {
    const CodePage& page = UserPage();
    const qsizetype before = bytes.size();
    bytes.resize(before + text.size());
    char* end = bytes.data() + before;
    for (qsizetype i = 0; i < text.size(); i += SignAt(text, i)) *end++ = page.bytes[text[i].unicode()];
    bytes.truncate(end - bytes.constData());
}

qint32 Columns(QStringView text) {
    qint32 columns = 0;
    for (qsizetype i = 0; i < text.size(); i += SignAt(text, i)) ++columns;
    return columns;
}

QString FirstColumns(const QString& text, qint32 columns) {
    qsizetype end = 0;
    for (; end < text.size() && columns > 0; --columns) end += SignAt(text, end);
    return text.first(end);
}

QString FromCodePage(const QByteArray& bytes) {
    return Decoded(bytes, UserPage());
}

QString FromNumberedPage(const QByteArray& bytes, int page) {
    return Decoded(bytes, page == 1250 ? CentralPage() : WesternPage());
}

}  // namespace output
