#include "help/RtfShown.h"

#include <QTextBlock>

using namespace Qt::StringLiterals;

namespace {

constexpr int PlainSize = 16;

QString Distances(const QTextBlockFormat& format) {
    QStringList set;
    const auto add = [&](QStringView name, qreal value) {
        if (value != 0) set << name.toString() + QString::number(value);
    };
    add(u"h", format.headingLevel());
    add(u"li", format.leftMargin());
    add(u"fi", format.textIndent());
    add(u"sb", format.topMargin());
    add(u"sa", format.bottomMargin());
    for (const auto& stop : format.tabPositions()) add(u"tab", stop.position);
    return set.isEmpty() ? QString() : u'[' + set.join(u' ') + u']';
}

QString Tagged(QString text, const QTextCharFormat& format) {
    text.replace(QChar::LineSeparator, u'/').replace(u'\t', u'»');
    if (format.isAnchor()) return u"<a %1>%2</a>"_s.arg(format.anchorHref(), text);
    if (format.fontUnderline()) text = u"<u>%1</u>"_s.arg(text);
    if (format.fontItalic()) text = u"<i>%1</i>"_s.arg(text);
    if (format.fontWeight() == QFont::Bold) text = u"<b>%1</b>"_s.arg(text);
    const int size = format.intProperty(QTextFormat::FontPixelSize);
    return size == PlainSize ? text : u"{%1}"_s.arg(size) + text;
}

}  // namespace

QString ShownParagraphs(const QTextDocument& document) {
    QStringList lines;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QString line = Distances(block.blockFormat());
        for (auto piece = block.begin(); !piece.atEnd(); ++piece)
            line += Tagged(piece.fragment().text(), piece.fragment().charFormat());
        lines << line;
    }
    return lines.join(u'\n');
}
