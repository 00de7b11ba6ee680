#pragma once

class QWidget;

namespace forms {

// The focus of a group of options lies on the one that is chosen when the Tab key or a window that opens leads there:
// the space bar must not choose another. In a group without a choice every option can be reached.
void KeepFocusOnChosenOptions(const QWidget& form);

}  // namespace forms
