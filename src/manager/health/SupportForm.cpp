#include "manager/health/SupportForm.h"

#include <QFileInfo>

#include "forms/FileDialog.h"
#include "forms/MsgBox.h"
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
    QString path = forms::AskSaveName(this, tr("Save the report"), tr("Text (*.txt)"));
    if (path.isEmpty()) return;
    if (!path.endsWith(u".txt"_s, Qt::CaseInsensitive)) path += u".txt"_s;
    if (QFileInfo::exists(path) && !forms::Ask(tr("Replace %1?").arg(path), Caption())) return;
    values::SaveFile(path, text_.toUtf8());
    forms::Inform(tr("The report is saved as %1.").arg(path), Caption());
    Unload();
}

void SupportForm::cmdClose_Click() {
    Unload();
}

}  // namespace manager
