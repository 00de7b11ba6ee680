#pragma once

#include "manager/setup/SetupStep.h"
#include "ui_PasswordStep.h"

namespace manager {

// A password of one's own in the place of the delivered one.
class PasswordStep : public SetupStep {
    Q_OBJECT

public:
    PasswordStep();

    void Fill() override;
    bool Store() override;

private:
    void TellOfDelivered();

    Ui::PasswordStep ui;
};

}  // namespace manager
