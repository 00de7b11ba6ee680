#include "support/OfficeForm.h"

#include <QToolBar>

#include "core/ImageList.h"
#include "core/mdiORVA.h"
#include "forms/Tokens.h"

using namespace Qt::StringLiterals;

void OfficeForm::HelpAndClose(QAbstractButton* help, QAbstractButton* close, std::initializer_list<Qt::Key> closeKeys,
                              const QString& helpFile) {
    helpFile_ = helpFile;
    FunctionKeys({{Qt::Key_F1, help}});
    for (const Qt::Key key : closeKeys) FunctionKeys({{key, close}});
    On(help, &OfficeForm::cmdHelp_Click);
    On(close, &OfficeForm::cmdClose_Click);
}

void OfficeForm::TieToolBar(QToolBar* bar, std::initializer_list<std::pair<QAction*, QAbstractButton*>> tools) {
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->setIconSize({ImageSize, ImageSize});
    for (const auto& [tool, button] : tools) {
        tool->setIcon(mdiORVA::Image(tool->objectName(), forms::TheTokens().Ink));
        connect(tool, &QAction::triggered, button, &QAbstractButton::click);
    }
}

// The work on the left, help and close on the right, as everywhere.
void OfficeForm::SpreadToolBar(QToolBar* bar) {
    QAction* work = bar->actions().first();
    bar->widgetForAction(work)->setProperty("role", u"main"_s);
    work->setIcon(mdiORVA::Image(work->objectName(), forms::TheTokens().Paper));
    auto* gap = new QWidget;
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->insertWidget(bar->actions().at(1), gap);
}

void OfficeForm::cmdHelp_Click() {
    ShowHelp(helpFile_);
}

void OfficeForm::cmdClose_Click() {
    Unload();
}
