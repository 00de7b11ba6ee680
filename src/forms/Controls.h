#pragma once

#include <QString>
#include <QStringView>
#include <QWidget>

class QLineEdit;

// Controls by name and by text, whatever their kind, and the keys that the screens send themselves.
namespace forms {

[[noreturn]] void ThrowNoControl(const QWidget* form, QStringView name);

// A named control of a form, of the kind that is asked for; never null: Error 91 where the form is gone, 438 where it
// has no such control.
template <typename T = QWidget>
T* Control(const QWidget* form, QStringView name) {
    auto* control = form ? form->findChild<T*>(name.toString()) : nullptr;
    if (!control) ThrowNoControl(form, name);
    return control;
}

// The text of a line edit, combo box, label, button or text view. What is set is shown whole, also where less may be
// typed.
QString TextOf(const QWidget* control);
void SetText(QWidget* control, const QString& text);

// The looks follow the properties that they hang on, once these have changed.
void Restyle(QWidget* control);
// What the control is to the theme; empty for nothing special.
void SetRole(QWidget* control, const QString& role);

// {tab}: the focus moves on as the Tab key does.
void SendTab(QWidget* from);
// {home}+{end}: the whole text is selected. {end}: the caret goes to the end.
void SelectAll(QLineEdit* box);
void CaretToEnd(QLineEdit* box);
// The focus goes to a box whose text is to be typed anew: it is selected even if the focus was there all along.
void GoTo(QWidget* box);

// The control's picture from a file; false (and nothing changes) when the file is missing or holds no picture that a
// till can show in no time. A button's is read when it is first painted.
bool LoadPicture(QWidget* control, const QString& path);

}  // namespace forms
