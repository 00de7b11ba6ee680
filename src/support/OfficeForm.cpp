#include "support/OfficeForm.h"

void OfficeForm::HelpAndClose(QAbstractButton* help, QAbstractButton* close, std::initializer_list<Qt::Key> closeKeys,
                              const QString& helpFile) {
    helpFile_ = helpFile;
    FunctionKeys({{Qt::Key_F1, help}});
    for (const Qt::Key key : closeKeys) FunctionKeys({{key, close}});
    On(help, &OfficeForm::cmdHelp_Click);
    On(close, &OfficeForm::cmdClose_Click);
}

void OfficeForm::cmdHelp_Click() {
    ShowHelp(helpFile_);
}

void OfficeForm::cmdClose_Click() {
    Unload();
}
