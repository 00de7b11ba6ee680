#include "forms/FocusReturn.h"

#include <QApplication>

namespace forms {

namespace {

int count = 0;

}  // namespace

FocusReturn::FocusReturn() : window_(QApplication::activeWindow()), control_(QApplication::focusWidget()) {
    ++count;
}

int FocusReturn::Count() {
    return count;
}

void FocusReturn::GiveBack() const {
    if (!window_ || !window_->isVisible()) return;
    window_->activateWindow();
    // At once, for what comes up next in the same handler; the window system takes its time.
    QApplication::setActiveWindow(window_);
    if (!control_ || control_->window() != window_ || !control_->isVisible() || !control_->isEnabled()) return;
    const QWidget* wanted = window_->focusWidget();
    if (!wanted || wanted == control_) control_->setFocus(Qt::ActiveWindowFocusReason);
}

}  // namespace forms
