#include "manager/Page.h"

#include <exception>

#include "forms/MsgBox.h"
#include "forms/Program.h"
#include "manager/Beside.h"
#include "manager/Start.h"
#include "values/Error.h"

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

bool Page::RunWithoutShop(const QString& doing, const std::function<void(const upkeep::Progress&)>& work) {
    bool goes = true;
    Q_EMIT ShopGoes(&goes);
    if (!goes) return false;
    CloseShop();
    std::exception_ptr failure;
    try {
        RunBeside(this, doing, work);
    } catch (...) {
        failure = std::current_exception();
    }
    try {
        OpenShop();
    } catch (const values::Error& error) {  // which says nothing of the work
        forms::Tell(forms::ErrorText(error), forms::Icon::Warning, Caption());
    }
    if (failure) std::rethrow_exception(failure);
    return true;
}

}  // namespace manager
