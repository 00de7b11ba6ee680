#pragma once

#include "manager/Page.h"
#include "ui_HealthPage.h"

namespace manager {

// What a look over the shop finds, in words.
class HealthPage : public Page {
    Q_OBJECT

public:
    explicit HealthPage(QWidget* parent);

    Ui::HealthPage ui;

protected:
    void Form_Load() override;

private:
    void cmdLook_Click();
    void cmdReport_Click();
    void lstFindings_Chosen();
};

}  // namespace manager
