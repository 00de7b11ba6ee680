#include "manager/HealthReport.h"

#include <QSaveFile>

#include "forms/FileDialog.h"
#include "forms/MsgBox.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace manager {

HealthReport::HealthReport(const QString& text) : text_(text.toUtf8()) {
    ui.setupUi(this);
    ui.txtReport->SetDecoder([](const QByteArray& line) { return QString::fromUtf8(line); });
    On(ui.cmdSave, &HealthReport::cmdSave_Click);
    On(ui.cmdClose, &HealthReport::cmdClose_Click);
    FunctionKeys({{Qt::Key_Escape, ui.cmdClose}});
}

void HealthReport::Form_Load() {
    if (!shown_.open() || shown_.write(text_) != text_.size() || !shown_.flush())
        throw values::FileError(shown_, u"write '%1'"_s.arg(shown_.fileName()));
    ui.txtReport->Open(shown_.fileName());
    ui.cmdSave->setFocus();
}

void HealthReport::cmdSave_Click() {
    QString path = forms::AskSaveName(this, tr("Save the report"), tr("Text (*.txt)"));
    if (path.isEmpty()) return;
    if (!path.endsWith(u".txt"_s, Qt::CaseInsensitive)) path += u".txt"_s;
    if (QFile::exists(path) && !forms::Ask(tr("Replace %1?").arg(path), Caption())) return;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text_) != text_.size() || !file.commit())
        throw values::FileError(file, u"write '%1'"_s.arg(path));
    forms::Inform(tr("The report is saved as %1.").arg(path), Caption());
    Unload();
}

void HealthReport::cmdClose_Click() {
    Unload();
}

}  // namespace manager
