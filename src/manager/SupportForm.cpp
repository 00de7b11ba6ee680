#include "manager/SupportForm.h"

#include "forms/FileDialog.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace manager {

SupportForm::SupportForm(QString text) : text_(std::move(text)) {
    ui.setupUi(this);
    FunctionKeys({{Qt::Key_Escape, ui.cmdClose}});
    On(ui.cmdSave, &SupportForm::cmdSave_Click);
    On(ui.cmdClose, &SupportForm::cmdClose_Click);
}

void SupportForm::Form_Load() {
    ui.txtReport->ShowText(text_);
}

void SupportForm::cmdSave_Click() {
    const QString path = forms::AskSaveName(this, Caption(), tr("Text (*.txt)"));
    if (path.isEmpty()) return;
    values::SaveFile(path.contains(u'.') ? path : path + u".txt"_s, text_.toUtf8());
    Unload();
}

void SupportForm::cmdClose_Click() {
    Unload();
}

}  // namespace manager
