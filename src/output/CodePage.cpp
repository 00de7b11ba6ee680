#include "output/CodePage.h"

#include <QHash>
#include <array>

#include <iconv.h>

#include "output/Channel.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {

// A code page by its 256 characters; a byte without a character stands for the control code of its number.
struct CodePage {
    explicit CodePage(const char* name);
    std::array<char16_t, 256> characters;
    QHash<char16_t, char> bytes;
};

CodePage::CodePage(const char* name) {
    const iconv_t converter = iconv_open("UTF-16LE", name);
    if (converter == reinterpret_cast<iconv_t>(-1))
        throw OutputError(DeviceUnavailable, u"This system lacks the code page %1."_s.arg(QLatin1StringView(name)));
    for (size_t code = 0; code < characters.size(); ++code) {
        char in = static_cast<char>(code);
        uchar out[4] = {};
        char* from = &in;
        char* to = reinterpret_cast<char*>(out);
        size_t inLeft = 1;
        size_t outLeft = sizeof out;
        const bool known = iconv(converter, &from, &inLeft, &to, &outLeft) != static_cast<size_t>(-1);
        characters[code] = static_cast<char16_t>(known ? out[0] | out[1] << 8 : code);
        bytes.insert(characters[code], static_cast<char>(code));
    }
    iconv_close(converter);
}

bool IsCentralEuropean(const QLocale& locale) {
    switch (locale.language()) {
        case QLocale::Croatian:
        case QLocale::Slovenian:
        case QLocale::Czech:
        case QLocale::Slovak:
        case QLocale::Polish:
        case QLocale::Hungarian:
        case QLocale::Romanian:
        case QLocale::Albanian:
            return true;
        case QLocale::Bosnian:
        case QLocale::Serbian:
            return locale.script() == QLocale::LatinScript;
        default:
            // Montenegrin, which is not known as a language of its own everywhere.
            return locale.territory() == QLocale::Montenegro && locale.script() == QLocale::LatinScript;
    }
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
    return IsCentralEuropean(values::UserLocale()) ? CentralPage() : WesternPage();
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

QByteArray ToCodePage(QStringView text) {
    const CodePage& page = UserPage();
    QByteArray result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); i += SignAt(text, i)) result += page.bytes.value(text[i].unicode(), '?');
    return result;
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
