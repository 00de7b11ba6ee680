#pragma once

class QWidget;

namespace forms {

// The focus of a group of options lies on the one that is chosen, whichever way it comes: the space bar, pressed where
// the Tab key leads, must not choose another. In a group without a choice every option can be reached.
void KeepFocusOnChosenOptions(const QWidget& form);

}  // namespace forms
