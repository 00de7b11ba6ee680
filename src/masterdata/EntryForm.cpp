#include "masterdata/EntryForm.h"

#include <algorithm>

#include "forms/Controls.h"
#include "forms/MsgBox.h"
#include "store/StoreError.h"

void EntryForm::SaveHelpAndClose(QAbstractButton* save, QAbstractButton* help, QAbstractButton* close,
                                 std::initializer_list<Qt::Key> closeKeys, const QString& helpFile) {
    HelpAndClose(help, close, closeKeys, helpFile);
    FunctionKeys({{Qt::Key_F5, save}});
    EnterMovesOn();
}

bool EntryForm::AllFilled(std::initializer_list<QWidget*> boxes) const {
    if (std::ranges::none_of(boxes, [](const QWidget* box) { return forms::TextOf(box).isEmpty(); })) return true;
    forms::Inform(tr("Fill in all required fields."), Caption());
    return false;
}

bool EntryForm::Trapped(const std::function<void()>& action, const QString& duplicate, QWidget* box) const {
    try {
        action();
        return true;
    } catch (const values::Error& error) {
        if (error.Number() == store::DuplicateKey) {
            forms::Tell(duplicate);
            if (box) forms::GoTo(box);
        } else {
            forms::Inform(forms::ErrorText(error), Caption());
        }
    }
    return false;
}
