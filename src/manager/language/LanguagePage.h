#pragma once

#include "manager/Page.h"
#include "ui_LanguagePage.h"

class QComboBox;

namespace manager {

// Which language the till's screens, and which its receipts and reports have.
class LanguagePage : public Page {
    Q_OBJECT

public:
    explicit LanguagePage(QWidget* parent);

    Ui::LanguagePage ui;

protected:
    void Form_Load() override;
    // The head of the receipt may be another by now.
    void Form_Activate() override;

private:
    void cmdStore_Click();
    void ShowReceipt();
};

}  // namespace manager
