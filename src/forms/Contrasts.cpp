#include "forms/Theme.h"
#include "forms/Tokens.h"

namespace forms {

Tokens TokensOf(Contrast contrast);

namespace {

QColor Rgb(QRgb colour) {
    return {colour};
}

// Black and white with full lines, for weak eyes and bright shops: texts 7:1 and more, lines as strong as texts.
Tokens HighContrast() {
    Tokens tokens;
    tokens.Ground = tokens.Heading = tokens.TabBehind = tokens.Strip = tokens.Free = Rgb(0xFFFFFF);
    tokens.SecondRow = tokens.Hover = Rgb(0xF2F2F2);
    tokens.Line = tokens.Edge = tokens.StripLine = tokens.Ink = tokens.Muted = tokens.OnFocus = Rgb(0x000000);
    tokens.Faint = Rgb(0x595959);
    tokens.Accent = Rgb(0x00473F);
    tokens.AccentDark = tokens.Night = Rgb(0x000000);
    tokens.Danger = tokens.DangerLine = Rgb(0x8B0000);
    tokens.NightText = Rgb(0xFFFFFF);
    tokens.ChosenRow = Rgb(0x9FE0D2);
    tokens.Pressed = Rgb(0xBFBFBF);
    return tokens;
}

// For dim rooms. What has the focus stays yellow.
Tokens Dark() {
    Tokens tokens;
    tokens.Ground = Rgb(0x10181E);
    tokens.Paper = tokens.Free = Rgb(0x1A252D);
    tokens.SecondRow = Rgb(0x1F2B34);
    tokens.Line = tokens.StripLine = Rgb(0x3A4852);
    tokens.Edge = Rgb(0x7A8894);
    tokens.Ink = Rgb(0xEEF2F5);
    tokens.Muted = Rgb(0xA9B6BF);
    tokens.Faint = Rgb(0x6E7B86);
    tokens.Accent = Rgb(0x5FD0B4);
    tokens.AccentDark = Rgb(0x7CF0C2);
    tokens.OnAccent = tokens.OnDanger = Rgb(0x10181E);
    tokens.Danger = tokens.DangerLine = Rgb(0xFF8A8A);
    tokens.DangerPale = Rgb(0x3A2227);
    tokens.Night = Rgb(0x05090C);
    tokens.ChosenRow = Rgb(0x1F4F49);
    tokens.Heading = tokens.Strip = tokens.TabBehind = tokens.Hover = Rgb(0x22303A);
    tokens.Pressed = Rgb(0x33444F);
    tokens.ReadOnly = Rgb(0x2A363F);
    return tokens;
}

}  // namespace

Tokens TokensOf(Contrast contrast) {
    switch (contrast) {
        case Contrast::Usual:
            return {};
        case Contrast::High:
            return HighContrast();
        case Contrast::Dark:
            return Dark();
    }
    return {};
}

}  // namespace forms
