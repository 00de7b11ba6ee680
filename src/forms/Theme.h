#pragma once

#include <QSize>

namespace forms {

// The look of the whole program: Fusion, one palette, one style sheet, the font. Screens only say what a control is,
// by the property "role" in their .ui files:
//   buttons   main (save, new, add), post (the big one of the sales screen), danger (deletes, cancels)
//   boxes     entry (20 px entry field), plain (a strong text that looks like a label), plainAccent (the same in
//             accent), strip (the line of information; stripDanger, stripAdded: for a moment), pale (light grey until
//             it has had the focus)
//   lists     stale (pale: of something that is over)
//   labels    heading, muted, strong (18 px), figure (18 px, for numbers), large (28 px), accent,
//             picture (a dotted frame for one)
//   frames    panel (paper, border, corners), night (the panel of the total), strip (the line of information)
//   options   columns (fixed pitch, for a caption that shows the columns of a print)
//   on night  total (46 px figure), nightText
//   any button may be "tight" (property, true): less room beside its caption, for rows of many; a list may too: a low
//   heading, for few rows that nobody chooses
// Read-only boxes are grey of themselves; a box under HighlightOnFocus turns yellow with an ink border.
// Type begins in the step for the screen.
void InstallTheme();
enum class Contrast { Usual, High, Dark };
void UseContrast(Contrast contrast);

// Type, rows and what is measured with them come in three steps. Takes the step for a main window of this size, and
// lays out anew what is on the screen when that is another one.
void FitTypeTo(QSize room);
// What a finger hits without looking twice, in pixels of the smallest step.
inline constexpr int FingerHeight = 44;
// What measures so many pixels in the smallest step.
int Scaled(int pixels);

}  // namespace forms
