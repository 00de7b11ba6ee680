#include "receipts/TextPreview.h"

#include <QCoreApplication>
#include <QScopeGuard>

#include "core/dbModule.h"
#include "forms/FileDialog.h"
#include "output/CodePage.h"
#include "receipts/TextFiles.h"
#include "support/Help.h"

using namespace Qt::StringLiterals;

TextPreview::TextPreview(const QString& name, const QString& title) {
    setObjectName(name);
    ui.setupUi(this);
    setWindowTitle(title);
    ui.rtBox->SetDecoder(output::FromCodePage);
    FunctionKeys({{Qt::Key_Escape, ui.cmdClose},
                  {Qt::Key_F1, ui.cmdHelp},
                  {Qt::Key_F4, ui.cmdSacuvaj},
                  {Qt::Key_F5, ui.cmdPrint},
                  {Qt::Key_F6, ui.cmdBrisi},
                  {Qt::Key_F12, ui.cmdClose}});
    On(ui.cmdPrint, &TextPreview::cmdPrint_Click);
    On(ui.cmdSacuvaj, &TextPreview::cmdSacuvaj_Click);
    On(ui.cmdBrisi, &TextPreview::cmdBrisi_Click);
    On(ui.cmdHelp, &TextPreview::cmdHelp_Click);
    On(ui.cmdClose, &TextPreview::cmdClose_Click);
}

void TextPreview::ShowFile() {
    if (FileExists(FilePath())) ui.rtBox->Open(FilePath());
}

void TextPreview::Form_Activate() {
    ui.rtBox->ScrollToEnd();
}

void TextPreview::cmdPrint_Click() {
    if (printing_ || !FileExists(FilePath())) return;
    const QString title = Caption();
    const auto done = qScopeGuard([&] {
        printing_ = false;
        setWindowTitle(title);
    });
    printing_ = true;
    PrintTextFile(FilePath(), [&](int percent) { ShowProgress(title, percent); });
}

void TextPreview::ShowProgress(const QString& title, int percent) {
    setWindowTitle(title + u" - "_s + QString::number(percent) + u" %"_s);
    // Keys and clicks wait until the text is out.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void TextPreview::cmdSacuvaj_Click() {
    if (!FileExists(NeededForSaving())) return;
    const QString name = forms::AskSaveName(this, tr("Save as"), tr("Report (*.txt)"));
    if (!name.isEmpty()) CopyTextFile(FilePath(), name);
}

void TextPreview::cmdBrisi_Click() {
    ui.rtBox->Clear();
    DeleteTextFile(FilePath());
}

void TextPreview::cmdHelp_Click() {
    ShowHelp();
}

void TextPreview::cmdClose_Click() {
    Unload();
}
