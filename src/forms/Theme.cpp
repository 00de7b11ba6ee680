#include "forms/Theme.h"

#include <QApplication>
#include <QFontDatabase>
#include <QHash>
#include <QPalette>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "forms/FixedSizes.h"
#include "forms/ThemeStyle.h"
#include "forms/Tokens.h"

using namespace Qt::StringLiterals;

namespace forms {

// In ThemeSheet.cpp: the rules, with @names in place of the tokens.
QString ThemeSheet();
// In Contrasts.cpp: the colours.
Tokens TokensOf(Contrast contrast);

namespace {

// From which size of the main window on, and by how much.
struct Step {
    QSize room;
    double factor;
};
constexpr Step Steps[] = {{{0, 0}, 1.0}, {{1600, 880}, 1.25}, {{2400, 1260}, 1.75}};

struct Look {
    Contrast contrast = Contrast::Usual;
    double factor = Steps[0].factor;
    Tokens tokens;
};
Look look;

constexpr int Tokens::*Measures[] = {&Tokens::TextSize,       &Tokens::LabelSize,     &Tokens::PlainAccentSize,
                                     &Tokens::StrongSize,     &Tokens::FieldHeight,   &Tokens::EntryHeight,
                                     &Tokens::ButtonHeight,   &Tokens::TabHeight,     &Tokens::RowHeight,
                                     &Tokens::TightRowHeight, &Tokens::HeadingHeight, &Tokens::ScrollBarWidth,
                                     &Tokens::DaySize,        &Tokens::TickSize};

double FactorFor(QSize room) {
    double factor = Steps[0].factor;
    for (const Step& step : Steps)
        if (room.width() >= step.room.width() && room.height() >= step.room.height()) factor = step.factor;
    return factor;
}

Tokens Enlarged(Tokens tokens) {
    for (const auto measure : Measures) tokens.*measure = Scaled(tokens.*measure);
    for (auto* sizes : {&tokens.EntrySizes, &tokens.TotalSizes})
        for (int& size : *sizes) size = Scaled(size);
    for (int& size : tokens.TabSizes) size = Scaled(size);
    return tokens;
}

QFont TextFont() {
    QFont font = QApplication::font();
    if (QFontDatabase::hasFamily(u"Roboto"_s)) font.setFamily(u"Roboto"_s);
    font.setPixelSize(look.tokens.TextSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QPalette Colours(const Tokens& tokens) {
    QPalette palette;
    palette.setColor(QPalette::Window, tokens.Ground);
    palette.setColor(QPalette::WindowText, tokens.Ink);
    palette.setColor(QPalette::Base, tokens.Paper);
    palette.setColor(QPalette::AlternateBase, tokens.SecondRow);
    palette.setColor(QPalette::Text, tokens.Ink);
    palette.setColor(QPalette::PlaceholderText, tokens.Muted);
    palette.setColor(QPalette::Button, tokens.Paper);
    palette.setColor(QPalette::ButtonText, tokens.Ink);
    palette.setColor(QPalette::BrightText, tokens.Danger);
    palette.setColor(QPalette::Highlight, tokens.Accent);
    palette.setColor(QPalette::HighlightedText, tokens.OnAccent);
    palette.setColor(QPalette::Link, tokens.Accent);
    palette.setColor(QPalette::ToolTipBase, tokens.Night);
    palette.setColor(QPalette::ToolTipText, tokens.NightText);
    palette.setColor(QPalette::Light, tokens.Paper);
    palette.setColor(QPalette::Mid, tokens.Line);
    palette.setColor(QPalette::Dark, tokens.Edge);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, tokens.Faint);
    palette.setColor(QPalette::Disabled, QPalette::Base, tokens.ReadOnly);
    return palette;
}

QString Pixels(int number) {
    return QString::number(number) + u"px"_s;
}

QHash<QString, QString> Names(const Tokens& tokens) {
    return {
        {u"ground"_s, tokens.Ground.name()},
        {u"paper"_s, tokens.Paper.name()},
        {u"line"_s, tokens.Line.name()},
        {u"edge"_s, tokens.Edge.name()},
        {u"ink"_s, tokens.Ink.name()},
        {u"muted"_s, tokens.Muted.name()},
        {u"faint"_s, tokens.Faint.name()},
        {u"accent"_s, tokens.Accent.name()},
        {u"accentDark"_s, tokens.AccentDark.name()},
        {u"onAccent"_s, tokens.OnAccent.name()},
        {u"danger"_s, tokens.Danger.name()},
        {u"onDanger"_s, tokens.OnDanger.name()},
        {u"dangerLine"_s, tokens.DangerLine.name()},
        {u"dangerPale"_s, tokens.DangerPale.name()},
        {u"night"_s, tokens.Night.name()},
        {u"nightText"_s, tokens.NightText.name()},
        {u"glow"_s, tokens.Glow.name()},
        {u"chosenRow"_s, tokens.ChosenRow.name()},
        {u"secondRow"_s, tokens.SecondRow.name()},
        {u"heading"_s, tokens.Heading.name()},
        {u"strip"_s, tokens.Strip.name()},
        {u"stripLine"_s, tokens.StripLine.name()},
        {u"hover"_s, tokens.Hover.name()},
        {u"pressed"_s, tokens.Pressed.name()},
        {u"tabBehind"_s, tokens.TabBehind.name()},
        {u"focus"_s, tokens.Focus.name()},
        {u"onFocus"_s, tokens.OnFocus.name()},
        {u"readOnly"_s, tokens.ReadOnly.name()},
        {u"textSize"_s, Pixels(tokens.TextSize)},
        {u"labelSize"_s, Pixels(tokens.LabelSize)},
        {u"strongSize"_s, Pixels(tokens.StrongSize)},
        {u"plainAccentSize"_s, Pixels(tokens.PlainAccentSize)},
        {u"entrySize"_s, Pixels(tokens.EntrySizes[0])},
        {u"entryFit1"_s, Pixels(tokens.EntrySizes[1])},
        {u"entryFit2"_s, Pixels(tokens.EntrySizes[2])},
        {u"entryFit3"_s, Pixels(tokens.EntrySizes[3])},
        {u"totalSize"_s, Pixels(tokens.TotalSizes[0])},
        {u"totalFit1"_s, Pixels(tokens.TotalSizes[1])},
        {u"totalFit2"_s, Pixels(tokens.TotalSizes[2])},
        {u"totalFit3"_s, Pixels(tokens.TotalSizes[3])},
        {u"tabFit1"_s, Pixels(tokens.TabSizes[1])},
        {u"tabFit2"_s, Pixels(tokens.TabSizes[2])},
        {u"corner"_s, Pixels(tokens.Corner)},
        {u"fieldCorner"_s, Pixels(tokens.Corner - 2)},
        // A style sheet's heights do not count the borders.
        {u"fieldHeight"_s, Pixels(tokens.FieldHeight - 2)},
        {u"entryHeight"_s, Pixels(tokens.EntryHeight - 2)},
        {u"buttonHeight"_s, Pixels(tokens.ButtonHeight - 2)},
        {u"focusedFieldHeight"_s, Pixels(tokens.FieldHeight - 4)},
        {u"focusedEntryHeight"_s, Pixels(tokens.EntryHeight - 4)},
        {u"focusedButtonHeight"_s, Pixels(tokens.ButtonHeight - 4)},
        {u"spinHeight"_s, Pixels(tokens.FieldHeight - 6)},
        {u"plainHeight"_s, Pixels(tokens.FieldHeight - 12)},
        {u"tabHeight"_s, Pixels(tokens.TabHeight)},
        {u"headingHeight"_s, Pixels(tokens.HeadingHeight - 1)},
        // Seven days, and six weeks with the names of the days and the bar of the month.
        {u"calendarWidth"_s, Pixels(7 * tokens.DaySize)},
        {u"calendarHeight"_s, Pixels(8 * tokens.DaySize)},
        {u"tightHeading"_s, Pixels(tokens.TightRowHeight - 2)},
        {u"rowHeight"_s, Pixels(tokens.RowHeight)},
        {u"scrollBarWidth"_s, Pixels(tokens.ScrollBarWidth)},
    };
}

QString Filled(QStringView sheet) {
    const auto tokens = Names(look.tokens);
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

void Install() {
    look.tokens = Enlarged(TokensOf(look.contrast));
    QApplication::setFont(TextFont());
    QApplication::setPalette(Colours(look.tokens));
    qApp->setStyleSheet(Filled(ThemeSheet()));
}

}  // namespace

const Tokens& TheTokens() {
    return look.tokens;
}

int Scaled(int pixels) {
    return static_cast<int>(std::lround(pixels * look.factor));
}

void InstallTheme() {
    look.factor = FactorFor(QGuiApplication::primaryScreen()->availableSize());
    QApplication::setStyle(new ThemeStyle);
    Install();
}

void UseContrast(Contrast contrast) {
    if (contrast == look.contrast) return;
    look.contrast = contrast;
    Install();
}

void FitTypeTo(QSize room) {
    const double factor = FactorFor(room);
    if (factor == look.factor) return;
    look.factor = factor;
    // The sheet has the last word on what both of them measure, now as when a form is first shown.
    for (QWidget* window : QApplication::topLevelWidgets()) ScaleFixedSizes(*window);
    Install();
}

}  // namespace forms
