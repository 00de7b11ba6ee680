#pragma once

#include <QColor>
#include <array>

namespace forms {

// The colours and measures of the look, named once; the style sheet and what is painted by hand take them from here.
// Measures are pixels of the smallest step of type. A border that tells where to press or type, and what marks a chosen
// row, stands out from its ground by 3:1.
struct Tokens {
    QColor Ground{0xED, 0xF0, 0xF3};
    QColor Paper{0xFF, 0xFF, 0xFF};
    QColor Line{0xCB, 0xD3, 0xDA};
    QColor Edge{0x7A, 0x88, 0x94};  // the border of what can be typed into or pressed
    QColor Ink{0x16, 0x21, 0x2B};
    QColor Muted{0x5C, 0x6B, 0x78};
    QColor Faint{0x9A, 0xA5, 0xAE};  // texts of what is switched off
    QColor Accent{0x0E, 0x6B, 0x63};
    QColor AccentDark{0x0A, 0x52, 0x4C};
    QColor OnAccent{0xFF, 0xFF, 0xFF};
    QColor Danger{0xA4, 0x26, 0x2C};
    QColor OnDanger{0xFF, 0xFF, 0xFF};
    QColor Warning{0xC2, 0x7A, 0x10};
    QColor DangerLine{0xC0, 0x66, 0x6B};
    QColor DangerPale{0xFB, 0xEE, 0xEE};
    QColor Night{0x14, 0x22, 0x2B};
    QColor NightText{0xB7, 0xC4, 0xCC};
    QColor Glow{0x7C, 0xF0, 0xC2};
    QColor ChosenRow{0xCF, 0xE7, 0xE3};
    QColor SecondRow{0xF6, 0xF8, 0xF9};
    QColor Heading{0xEE, 0xF2, 0xF5};
    QColor Strip{0xE3, 0xEF, 0xED};
    QColor StripLine{0xB9, 0xD6, 0xD1};
    QColor Hover{0xF3, 0xF6, 0xF8};
    QColor Pressed{0xDD, 0xE3, 0xE8};
    QColor TabBehind{0xE2, 0xE7, 0xEB};
    QColor Focus{0xFF, 0xFF, 0x00};
    QColor OnFocus{0x16, 0x21, 0x2B};
    QColor ReadOnly{0xE0, 0xE0, 0xE0};
    QColor Free{0xF4, 0xF6, 0xF8};

    int TextSize = 14;
    int LabelSize = 13;
    int PlainAccentSize = 16;
    int StrongSize = 18;
    // The full size first, then what a figure shrinks to that would not fit otherwise.
    std::array<int, 4> EntrySizes{20, 17, 14, 11};
    std::array<int, 4> TotalSizes{46, 36, 28, 20};
    std::array<int, 3> TabSizes{13, 12, 11};
    int Corner = 6;
    int FieldHeight = 36;
    int EntryHeight = 46;
    int ButtonHeight = 44;
    int TabHeight = 42;
    int RowHeight = 40;
    int TightRowHeight = 26;
    int HeadingHeight = 38;
    int ScrollBarWidth = 44;
    int DaySize = 40;
    int Margin = 12;
    int Spacing = 8;
    int TickSize = 18;
};

// Those of the look that is installed, in the step of type in use.
const Tokens& TheTokens();

}  // namespace forms
