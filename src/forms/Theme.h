#pragma once

class QApplication;

namespace forms {

// The look of the whole program: Fusion, one palette, one style sheet, the font. Screens only say what a control is,
// by the property "role" in their .ui files:
//   buttons   main (save, new, add), post (the big one of the sales screen), danger (deletes, cancels)
//   boxes     entry (20 px entry field), plain (a strong text that looks like a label), plainAccent (the same in
//             accent), strip (the line of information), pale (light grey until it has had the focus)
//   labels    heading, muted, strong (18 px), figure (18 px, for numbers), accent, picture (a dotted frame for one)
//   frames    panel (paper, border, corners), night (the panel of the total), strip (the line of information)
//   options   columns (fixed pitch, for a caption that shows the columns of a print)
//   tabs      narrow (on the tab bar: less room beside the captions)
//   on night  total (46 px figure), nightText
//   any button may be "tight" (property, true): less room beside its caption, for rows of many
// Read-only boxes are grey of themselves; a box under HighlightOnFocus turns yellow with an ink border.
void InstallTheme(QApplication& application);

}  // namespace forms
