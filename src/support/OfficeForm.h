#pragma once

#include "forms/Form.h"
#include "support/Help.h"

class QToolBar;

// A screen of the back office: what all of them have beside their work, the help and the way out.
class OfficeForm : public forms::Form {
    Q_OBJECT

protected:
    // F1 and its button show a help text of the program's folder; the button and the keys given close the screen.
    void HelpAndClose(QAbstractButton* help, QAbstractButton* close,
                      std::initializer_list<Qt::Key> closeKeys = {Qt::Key_F12}, const QString& helpFile = ProgramHelp);

    // A tool bar whose actions press buttons and bear the pictures of the main window.
    void TieToolBar(QToolBar* bar, std::initializer_list<std::pair<QAction*, QAbstractButton*>> tools);
    // One that stands at the bottom, in place of the buttons.
    static void SpreadToolBar(QToolBar* bar);

    void cmdHelp_Click();
    void cmdClose_Click();

private:
    QString helpFile_;
};
