#pragma once

#include "manager/PageOfBoxes.h"
#include "ui_LanguagePage.h"

class QComboBox;

namespace manager {

// Which language the till's screens, and which its receipts and reports have.
class LanguagePage : public PageOfBoxes {
    Q_OBJECT

public:
    explicit LanguagePage(QWidget* parent);

    Ui::LanguagePage ui;

protected:
    void Form_Load() override;
    // The head of the receipt may be another by now.
    void Form_Activate() override;
    void Fill() override;
    bool Store() override;

private:
    void cmdStore_Click();
    void ShowReceipt();
};

}  // namespace manager
