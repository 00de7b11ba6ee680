#include "core/OfficeForm.h"

#include "core/Session.h"
#include "core/mdiORVA.h"

using namespace Qt::StringLiterals;

void OfficeForm::HelpAndClose(QAbstractButton* help, QAbstractButton* close, std::initializer_list<Qt::Key> closeKeys,
                              const QString& helpFile) {
    helpFile_ = helpFile;
    FunctionKeys({{Qt::Key_F1, help}});
    for (const Qt::Key key : closeKeys) FunctionKeys({{key, close}});
    On(help, &OfficeForm::cmdHelp_Click);
    On(close, &OfficeForm::cmdClose_Click);
}

void OfficeForm::cmdHelp_Click() {
    HelpFileName = helpFile_;
    mdiORVA::Window().Choose(u"mnuHelp1"_s);
}

void OfficeForm::cmdClose_Click() {
    Unload();
}
