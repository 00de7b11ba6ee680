#pragma once

#include "manager/PageOfBoxes.h"
#include "manager/printers/PortPanel.h"
#include "ui_PrintersPage.h"

namespace manager {

// Where receipts and reports go, and whether what stands there prints.
class PrintersPage : public PageOfBoxes {
    Q_OBJECT

public:
    explicit PrintersPage(QWidget* parent);

    Ui::PrintersPage ui;

protected:
    void Form_Load() override;
    void Fill() override;
    bool Store() override;

private:
    void cmdSave_Click();
    void cmdLook_Click();
    void cmdTestPage_Click();

    output::PrinterFamily Family() const;
    void TellOfPagePrinter();

    QList<PortPanel*> ports_;
};

}  // namespace manager
