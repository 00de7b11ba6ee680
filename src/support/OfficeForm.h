#pragma once

#include "forms/Form.h"
#include "support/Help.h"

// A screen of the back office: what all of them have beside their work, the help and the way out.
class OfficeForm : public forms::Form {
    Q_OBJECT

protected:
    // F1 and its button show a help text of the program's folder; the button and the keys given close the screen.
    void HelpAndClose(QAbstractButton* help, QAbstractButton* close,
                      std::initializer_list<Qt::Key> closeKeys = {Qt::Key_F12}, const QString& helpFile = ProgramHelp);

    void cmdHelp_Click();
    void cmdClose_Click();

private:
    QString helpFile_;
};
