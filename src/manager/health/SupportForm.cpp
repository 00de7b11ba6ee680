#include "manager/health/SupportForm.h"

#include "forms/MsgBox.h"
#include "manager/SaveAs.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace manager {

SupportForm::SupportForm(const QString& text) : text_(text) {
    ui.setupUi(this);
    On(ui.cmdSave, &SupportForm::cmdSave_Click);
    On(ui.cmdClose, &SupportForm::cmdClose_Click);
    FunctionKeys({{Qt::Key_Escape, ui.cmdClose}});
}

void SupportForm::Form_Load() {
    ui.txtReport->ShowText(text_);
    ui.cmdSave->setFocus();
}

void SupportForm::cmdSave_Click() {
    const QString path = AskSaveAs(this, tr("Save the report"), tr("Text (*.txt)"), {u".txt"_s});
    if (path.isEmpty()) return;
    values::SaveFile(path, text_.toUtf8());
    forms::Inform(tr("The report is saved as %1.").arg(path), Caption());
    Unload();
}

void SupportForm::cmdClose_Click() {
    Unload();
}

}  // namespace manager
