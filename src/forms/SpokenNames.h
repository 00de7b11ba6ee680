#pragma once

class QWidget;

namespace forms {

// Gives each control of a form that has no name for those who can't see it the one that the others read: its label, its
// placeholder, for a list the caption of the form.
void NameForReaders(QWidget& form);

}  // namespace forms
