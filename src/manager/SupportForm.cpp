#include "manager/SupportForm.h"

#include <QSaveFile>
#include <QTemporaryFile>

#include "forms/FileDialog.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace manager {

SupportForm::SupportForm(QString text) : text_(std::move(text)) {
    ui.setupUi(this);
    ui.txtReport->SetDecoder([](const QByteArray& line) { return QString::fromUtf8(line); });
    FunctionKeys({{Qt::Key_Escape, ui.cmdClose}});
    On(ui.cmdSave, &SupportForm::cmdSave_Click);
    On(ui.cmdClose, &SupportForm::cmdClose_Click);
}

void SupportForm::Form_Load() {
    QTemporaryFile file;
    if (!file.open() || file.write(text_.toUtf8()) < 0 || !file.flush())
        throw values::FileError(file, u"write a file"_s);
    ui.txtReport->Open(file.fileName());
}

void SupportForm::cmdSave_Click() {
    const QString path = forms::AskSaveName(this, Caption(), tr("Text (*.txt)"));
    if (path.isEmpty()) return;
    QSaveFile file(path.contains(u'.') ? path : path + u".txt"_s);
    const QByteArray bytes = text_.toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        throw values::FileError(file, u"write '%1'"_s.arg(path));
    Unload();
}

void SupportForm::cmdClose_Click() {
    Unload();
}

}  // namespace manager
