#include "manager/Page.h"

namespace manager {

void Page::TabLast(std::initializer_list<QWidget*> controls) {
    // Only behind a control that the Tab key knows is another one put.
    QWidget* before = window()->previousInFocusChain();
    while (before != this && before->focusPolicy() == Qt::NoFocus) before = before->previousInFocusChain();
    for (QWidget* control : controls) {
        setTabOrder(before, control);
        before = control;
    }
}

}  // namespace manager
