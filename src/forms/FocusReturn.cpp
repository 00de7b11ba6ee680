#include "forms/FocusReturn.h"

#include <QApplication>

namespace forms {

namespace {

int count = 0;

}  // namespace

// Later Qt asks for activateWindow() instead, which leaves it to the window system, and that takes its time.
void MakeActiveAtOnce(QWidget* window) {
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QApplication::setActiveWindow(window);
    QT_WARNING_POP
}

FocusReturn::FocusReturn() : window_(QApplication::activeWindow()), control_(QApplication::focusWidget()) {
    ++count;
}

int FocusReturn::Count() {
    return count;
}

void FocusReturn::GiveBack() const {
    if (!window_ || !window_->isVisible()) return;
    window_->activateWindow();
    MakeActiveAtOnce(window_);
    if (!control_ || control_->window() != window_ || !control_->isVisible() || !control_->isEnabled()) return;
    const QWidget* wanted = window_->focusWidget();
    if (!wanted || wanted == control_) control_->setFocus(Qt::ActiveWindowFocusReason);
}

}  // namespace forms
