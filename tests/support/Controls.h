#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QStringList>
#include <QWidget>
#include <vector>

// Controls of a form by name, and what they show.
namespace drivers {

// Null, with a failure, when the form has no such control of this type.
template <typename T>
T* Get(const QWidget& form, QStringView name) {
    auto* control = form.findChild<T*>(name.toString());
    if (!control) ADD_FAILURE() << qPrintable(form.objectName()) << " has no " << qPrintable(name.toString());
    return control;
}

// The text of a box, label or button.
QString Box(const QWidget& form, QStringView name);
// Gives a box the focus and replaces its text by typing.
void Type(const QWidget& form, QStringView name, QStringView keys);
// The rows of a list.
std::vector<QStringList> List(const QWidget& form, QStringView name);

// A picture of a widget under build/.../screens (or the folder in VELTON_SCREENS), for looking at. Returns the path.
QString Grab(QWidget& widget, const QString& name);

}  // namespace drivers

// So that failures show texts.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}
