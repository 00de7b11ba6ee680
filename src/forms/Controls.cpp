#include "forms/Controls.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStyle>
#include <QTextEdit>

#include "forms/OneLine.h"
#include "forms/Pictures.h"
#include "forms/TextView.h"
#include "forms/Words.h"
#include "values/Error.h"

namespace forms {

void ThrowNoControl(const QWidget* form, QStringView name) {
    if (!form) throw values::Error(values::NoObject, Words::tr("The screen that shows %1 is closed.").arg(name));
    throw values::Error(values::NotSupported, Words::tr("%1 has no control %2.").arg(form->objectName(), name));
}

QString TextOf(const QWidget* control) {
    if (const auto* box = qobject_cast<const QLineEdit*>(control)) return box->text();
    if (const auto* box = qobject_cast<const QComboBox*>(control)) return box->currentText();
    if (const auto* label = qobject_cast<const QLabel*>(control)) return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(control)) return button->text();
    if (const auto* view = qobject_cast<const TextView*>(control)) return view->PlainText();
    if (const auto* view = qobject_cast<const QPlainTextEdit*>(control)) return view->toPlainText();
    if (const auto* view = qobject_cast<const QTextEdit*>(control)) return view->toPlainText();
    return {};
}

// What has no looks yet takes them when it is first shown.
void Restyle(QWidget* control) {
    if (!control->testAttribute(Qt::WA_WState_Polished)) return;
    control->style()->unpolish(control);
    control->style()->polish(control);
}

void SetRole(QWidget* control, const QString& role) {
    if (control->property("role").toString() == role) return;
    control->setProperty("role", role);
    Restyle(control);
}

void SetText(QWidget* control, const QString& text) {
    if (auto* box = qobject_cast<QLineEdit*>(control)) return ShowWhole(box, text);
    if (auto* box = qobject_cast<QComboBox*>(control)) return box->setCurrentText(text);
    if (auto* label = qobject_cast<QLabel*>(control)) return label->setText(text);
    if (auto* button = qobject_cast<QAbstractButton*>(control)) return button->setText(text);
    if (auto* view = qobject_cast<QPlainTextEdit*>(control)) return view->setPlainText(text);
    if (auto* view = qobject_cast<QTextEdit*>(control)) return view->setPlainText(text);
}

void SendTab(QWidget* from) {
    // The parent moves the focus on even where the control itself would take a tab as a character.
    QWidget* receiver = from->isWindow() ? from : from->parentWidget();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QCoreApplication::sendEvent(receiver, &press);
}

void SelectAll(QLineEdit* box) {
    box->selectAll();
}

void CaretToEnd(QLineEdit* box) {
    box->end(false);
}

void GoTo(QWidget* box) {
    box->setFocus();
    if (auto* line = qobject_cast<QLineEdit*>(box)) line->selectAll();
}

bool LoadPicture(QWidget* control, const QString& path) {
    if (auto* button = qobject_cast<QAbstractButton*>(control)) {
        const QIcon icon = PictureIcon(path);
        if (!icon.isNull()) button->setIcon(icon);
        return !icon.isNull();
    }
    auto* label = qobject_cast<QLabel*>(control);
    const QPixmap picture = ReadPicture(path);
    if (!label || picture.isNull()) return false;
    label->setPixmap(picture);
    return true;
}

}  // namespace forms
