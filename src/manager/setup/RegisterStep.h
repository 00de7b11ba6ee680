#pragma once

#include "manager/setup/SetupStep.h"
#include "ui_RegisterStep.h"

namespace manager {

// The settings of a register that no screen of the till sets.
class RegisterStep : public SetupStep {
    Q_OBJECT

public:
    RegisterStep();

    void Fill() override;
    bool Store() override;

private:
    Ui::RegisterStep ui;
};

}  // namespace manager
