#include "forms/Theme.h"

#include <QApplication>
#include <QFontDatabase>
#include <QHash>
#include <QPalette>
#include <algorithm>

#include "forms/ThemeStyle.h"
#include "forms/Tokens.h"

using namespace Qt::StringLiterals;

namespace forms {

// In ThemeSheet.cpp: the rules, with @names in place of the tokens.
QString ThemeSheet();

namespace {

QFont TextFont() {
    QFont font = QApplication::font();
    if (QFontDatabase::hasFamily(u"Roboto"_s)) font.setFamily(u"Roboto"_s);
    font.setPixelSize(Tokens::TextSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QPalette Colours() {
    QPalette palette;
    palette.setColor(QPalette::Window, Tokens::Ground);
    palette.setColor(QPalette::WindowText, Tokens::Ink);
    palette.setColor(QPalette::Base, Tokens::Paper);
    palette.setColor(QPalette::AlternateBase, Tokens::SecondRow);
    palette.setColor(QPalette::Text, Tokens::Ink);
    palette.setColor(QPalette::PlaceholderText, Tokens::Muted);
    palette.setColor(QPalette::Button, Tokens::Paper);
    palette.setColor(QPalette::ButtonText, Tokens::Ink);
    palette.setColor(QPalette::BrightText, Tokens::Danger);
    palette.setColor(QPalette::Highlight, Tokens::Accent);
    palette.setColor(QPalette::HighlightedText, Tokens::Paper);
    palette.setColor(QPalette::Link, Tokens::Accent);
    palette.setColor(QPalette::ToolTipBase, Tokens::Night);
    palette.setColor(QPalette::ToolTipText, Tokens::Paper);
    palette.setColor(QPalette::Light, Tokens::Paper);
    palette.setColor(QPalette::Mid, Tokens::Line);
    palette.setColor(QPalette::Dark, Tokens::Edge);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, Tokens::Faint);
    palette.setColor(QPalette::Disabled, QPalette::Base, Tokens::ReadOnly);
    return palette;
}

QString Pixels(int number) {
    return QString::number(number) + u"px"_s;
}

QHash<QString, QString> Names() {
    using namespace forms::Tokens;
    return {
        {u"ground"_s, Ground.name()},
        {u"paper"_s, Paper.name()},
        {u"line"_s, Line.name()},
        {u"edge"_s, Edge.name()},
        {u"ink"_s, Ink.name()},
        {u"muted"_s, Muted.name()},
        {u"faint"_s, Faint.name()},
        {u"accent"_s, Accent.name()},
        {u"accentDark"_s, AccentDark.name()},
        {u"danger"_s, Danger.name()},
        {u"dangerLine"_s, DangerLine.name()},
        {u"dangerPale"_s, DangerPale.name()},
        {u"night"_s, Night.name()},
        {u"nightText"_s, NightText.name()},
        {u"glow"_s, Glow.name()},
        {u"chosenRow"_s, ChosenRow.name()},
        {u"secondRow"_s, SecondRow.name()},
        {u"heading"_s, Heading.name()},
        {u"strip"_s, Strip.name()},
        {u"stripLine"_s, StripLine.name()},
        {u"hover"_s, Hover.name()},
        {u"pressed"_s, Pressed.name()},
        {u"tabBehind"_s, TabBehind.name()},
        {u"focus"_s, Focus.name()},
        {u"readOnly"_s, ReadOnly.name()},
        {u"textSize"_s, Pixels(TextSize)},
        {u"labelSize"_s, Pixels(LabelSize)},
        {u"strongSize"_s, Pixels(StrongSize)},
        {u"entrySize"_s, Pixels(EntrySize)},
        {u"plainAccentSize"_s, Pixels(PlainAccentSize)},
        {u"totalSize"_s, Pixels(TotalSize)},
        {u"entryFit1"_s, Pixels(EntrySizes[1])},
        {u"entryFit2"_s, Pixels(EntrySizes[2])},
        {u"entryFit3"_s, Pixels(EntrySizes[3])},
        {u"totalFit1"_s, Pixels(TotalSizes[1])},
        {u"totalFit2"_s, Pixels(TotalSizes[2])},
        {u"totalFit3"_s, Pixels(TotalSizes[3])},
        {u"corner"_s, Pixels(Corner)},
        {u"fieldCorner"_s, Pixels(Corner - 2)},
        // A style sheet's heights do not count the borders.
        {u"fieldHeight"_s, Pixels(FieldHeight - 2)},
        {u"entryHeight"_s, Pixels(EntryHeight - 2)},
        {u"buttonHeight"_s, Pixels(ButtonHeight - 2)},
        {u"focusedFieldHeight"_s, Pixels(FieldHeight - 4)},
        {u"focusedEntryHeight"_s, Pixels(EntryHeight - 4)},
        {u"focusedButtonHeight"_s, Pixels(ButtonHeight - 4)},
        {u"spinHeight"_s, Pixels(FieldHeight - 6)},
        {u"headingHeight"_s, Pixels(HeadingHeight - 1)},
    };
}

QString Filled(QStringView sheet) {
    const auto tokens = Names();
    QString filled;
    for (qsizetype at; (at = sheet.indexOf(u'@')) >= 0;) {
        const auto name = sheet.sliced(at + 1);
        const auto isOfName = [](QChar c) { return c.isLetterOrNumber(); };
        const auto length = std::ranges::find_if_not(name, isOfName) - name.begin();
        const QString token = name.first(length).toString();
        Q_ASSERT(tokens.contains(token));
        filled.append(sheet.first(at)).append(tokens.value(token));
        sheet = name.sliced(length);
    }
    return filled.append(sheet);
}

}  // namespace

void InstallTheme(QApplication& application) {
    QApplication::setStyle(new ThemeStyle);
    QApplication::setFont(TextFont());
    QApplication::setPalette(Colours());
    application.setStyleSheet(Filled(ThemeSheet()));
}

}  // namespace forms
