#pragma once

#include "config/OptionButtons.h"
#include "support/OfficeForm.h"
#include "ui_frmWinPrinter.h"

// Font, font size and paper of the page printer. The size changes the running setting as soon as it is clicked, the
// font when it is saved; the paper holds until the program ends and is not stored.
class frmWinPrinter : public OfficeForm {
    Q_OBJECT

public:
    frmWinPrinter();

protected:
    void Form_Load() override;

private:
    void List1_Click();
    void cmdPrinter_Click();
    void cmdOK_Click();

    Ui::frmWinPrinter ui;
    OptionButtons velFont_;
    OptionsRecord rsOptions_;
};
