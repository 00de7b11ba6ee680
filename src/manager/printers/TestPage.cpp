#include "manager/printers/TestPage.h"

#include "output/CodePage.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

constexpr int LettersEach = 32;

// "----+----1----+----2", so many columns of it.
QString Ruler(int columns) {
    QString ruler;
    for (int ten = 1; ruler.size() < columns; ++ten) ruler += u"----+----"_s + QChar(u'0' + ten % 10);
    return ruler.first(columns);
}

}  // namespace

QStringList Rulers() {
    return {Ruler(32), Ruler(40), Ruler(80)};
}

// The page has its letters beside those of ASCII in its upper half.
QStringList Alphabet() {
    QByteArray bytes;
    for (int code = 0x80; code <= 0xFF; ++code) bytes += static_cast<char>(code);
    QString letters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"_s;
    for (const QChar sign : output::FromCodePage(bytes))
        if (sign.isLetter() || sign.category() == QChar::Symbol_Currency) letters += sign;
    QStringList lines;
    for (; !letters.isEmpty(); letters = letters.mid(LettersEach))
        lines << letters.first(qMin<qsizetype>(LettersEach, letters.size()));
    return lines;
}

}  // namespace manager
