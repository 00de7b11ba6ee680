#pragma once

#include <QTextBlock>
#include <vector>

#include "forms/Form.h"
#include "ui_frmHelp.h"

// A help text of the program's folder, the one that HelpFileName names, with its headings beside it.
class frmHelp : public forms::Form {
    Q_OBJECT

public:
    frmHelp();

protected:
    void Form_Load() override;

private:
    void rtBox_AnchorClicked(const QUrl& link);
    void lvContents_Choice();
    void cmdClose_Click();

    void ShowText();
    void ReadText();
    void ListHeadings();

    Ui::frmHelp ui;
    std::vector<QTextBlock> headings_;  // in the order of the list
};
