#pragma once

class QWidget;

namespace forms {

// Lets the content of a panel be scrolled when the panel is lower than it, with a bar or a finger; what has the focus
// comes into view. The panel keeps its place and its name.
void MakeScrollable(QWidget* panel);

}  // namespace forms
