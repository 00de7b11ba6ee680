#include "forms/MsgBox.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>

#include "forms/Dimmed.h"
#include "forms/FocusReturn.h"
#include "forms/Program.h"
#include "forms/ScanGuard.h"

namespace forms {

namespace {

QMessageBox::Icon ToQt(Icon icon) {
    switch (icon) {
        case Icon::None:
            return QMessageBox::NoIcon;
        case Icon::Information:
            return QMessageBox::Information;
        case Icon::Warning:
            return QMessageBox::Warning;
        case Icon::Critical:
            return QMessageBox::Critical;
        case Icon::Question:
            return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

// The button that closed the box. Leaves the handlers under way when the program ended meanwhile.
int Show(const QString& text, const QString& title, Icon icon, QMessageBox::StandardButtons buttons,
         QMessageBox::StandardButton preset, QMessageBox::StandardButton escape) {
    if (ProgramIsEnding()) throw ProgramEnds{};
    const FocusReturn focus;
    const Dimmed below(QApplication::activeWindow());
    // A handler inside the box's loop may delete the window it belongs to, and the box with it.
    const QPointer<QMessageBox> box = new QMessageBox(QApplication::activeWindow());
    box->setTextFormat(Qt::PlainText);
    box->setText(text);
    box->setWindowTitle(title.isEmpty() ? QCoreApplication::applicationName() : title);
    box->setIcon(ToQt(icon));
    box->setStandardButtons(buttons);
    box->setDefaultButton(preset);
    box->setEscapeButton(escape);
    new ScanGuard(box);
    const int answer = box->exec();
    delete box;
    if (ProgramIsEnding()) throw ProgramEnds{};
    focus.GiveBack();
    return answer;
}

}  // namespace

void Tell(const QString& text, Icon icon, const QString& title) {
    Show(text, title, icon, QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok);
}

bool Ask(const QString& text, const QString& title) {
    return Show(text, title, Icon::Question, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, QMessageBox::No) ==
           QMessageBox::Yes;
}

}  // namespace forms
