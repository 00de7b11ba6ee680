#pragma once

#include <QColor>
#include <array>

// The colours and measures of the look, named once; the style sheet and what is painted by hand take them from here.
namespace forms::Tokens {

inline constexpr QColor Ground{0xED, 0xF0, 0xF3};
inline constexpr QColor Paper{0xFF, 0xFF, 0xFF};
inline constexpr QColor Line{0xCB, 0xD3, 0xDA};
inline constexpr QColor Edge{0xB4, 0xBE, 0xC6};  // the border of what can be typed into or pressed
inline constexpr QColor Ink{0x16, 0x21, 0x2B};
inline constexpr QColor Muted{0x5C, 0x6B, 0x78};
inline constexpr QColor Faint{0x9A, 0xA5, 0xAE};  // texts of what is switched off
inline constexpr QColor Accent{0x0E, 0x6B, 0x63};
inline constexpr QColor AccentDark{0x0A, 0x52, 0x4C};
inline constexpr QColor Danger{0xA4, 0x26, 0x2C};
inline constexpr QColor Warning{0xC2, 0x7A, 0x10};
inline constexpr QColor DangerLine{0xD9, 0xA5, 0xA8};
inline constexpr QColor DangerPale{0xFB, 0xEE, 0xEE};
inline constexpr QColor Night{0x14, 0x22, 0x2B};
inline constexpr QColor NightText{0xB7, 0xC4, 0xCC};
inline constexpr QColor Glow{0x7C, 0xF0, 0xC2};
inline constexpr QColor ChosenRow{0xCF, 0xE7, 0xE3};
inline constexpr QColor SecondRow{0xF6, 0xF8, 0xF9};
inline constexpr QColor Heading{0xEE, 0xF2, 0xF5};
inline constexpr QColor Strip{0xE3, 0xEF, 0xED};
inline constexpr QColor StripLine{0xB9, 0xD6, 0xD1};
inline constexpr QColor Hover{0xF3, 0xF6, 0xF8};
inline constexpr QColor Pressed{0xDD, 0xE3, 0xE8};
inline constexpr QColor TabBehind{0xE2, 0xE7, 0xEB};
inline constexpr QColor Focus{0xFF, 0xFF, 0x00};
inline constexpr QColor ReadOnly{0xE0, 0xE0, 0xE0};
inline constexpr QColor TouchLine = Edge;
inline constexpr QColor Free{0xF4, 0xF6, 0xF8};

inline constexpr int TextSize = 14;
inline constexpr int LabelSize = 13;
inline constexpr int PlainAccentSize = 16;
inline constexpr int StrongSize = 18;
inline constexpr int EntrySize = 20;
inline constexpr int TotalSize = 46;
// What a figure shrinks to that would not fit otherwise.
inline constexpr std::array EntrySizes{EntrySize, 17, 14, 11};
inline constexpr std::array TotalSizes{TotalSize, 36, 28, 20};
inline constexpr int Corner = 6;
inline constexpr int FieldHeight = 36;
inline constexpr int EntryHeight = 46;
inline constexpr int ButtonHeight = 44;
inline constexpr int RowHeight = 34;
inline constexpr int HeadingHeight = 38;
inline constexpr int Margin = 12;
inline constexpr int Spacing = 8;
inline constexpr int TickSize = 18;

}  // namespace forms::Tokens
