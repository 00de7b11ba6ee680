#pragma once

#include "manager/Page.h"
#include "ui_HealthPage.h"
#include "upkeep/health/HealthLines.h"

namespace manager {

// What a look over the shop finds, in words and with what to do about it.
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

    // Why there is nothing to show; empty when all was looked at.
    QString Look();
    void ShowLines();
    QString Verdict() const;

    upkeep::Findings findings_;
    std::vector<upkeep::HealthLine> lines_;
};

}  // namespace manager
