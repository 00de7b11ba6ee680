#pragma once

class QLineEdit;
class QString;

namespace forms {

// Boxes of one line that show what is stored. A text that the program gives stays as it is, line breaks and all, so
// that a save gives back what nobody touched; what is typed or pasted into it is held to one line and to the box's
// length.
void KeepToOneLine(QLineEdit* box);
// Shows a text in its full length, however little the box lets one type.
void ShowWhole(QLineEdit* box, const QString& text);

}  // namespace forms
