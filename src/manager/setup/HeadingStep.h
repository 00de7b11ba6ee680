#pragma once

#include "core/Settings.h"
#include "manager/setup/SetupStep.h"
#include "ui_HeadingStep.h"

namespace manager {

// The four lines above each receipt, the currency, and how that looks on paper.
class HeadingStep : public SetupStep {
    Q_OBJECT

public:
    HeadingStep();

    void Fill() override;
    bool Store() override;

private:
    Heading Typed() const;
    void ShowReceipt();
    void TellOfWidth();

    Ui::HeadingStep ui;
};

}  // namespace manager
