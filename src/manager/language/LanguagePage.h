#pragma once

#include "manager/BoxesPage.h"
#include "ui_LanguagePage.h"

class QComboBox;

namespace manager {

// Which language the till's screens, and which its receipts and reports have.
class LanguagePage : public BoxesPage {
    Q_OBJECT

public:
    explicit LanguagePage(QWidget* parent);

    Ui::LanguagePage ui;

protected:
    void Form_Load() override;
    // The head of the receipt may be another by now.
    void Form_Activate() override;
    void Fill() override;
    void Store() override;

private:
    void cmdStore_Click();
    void ShowReceipt();
};

}  // namespace manager
