#pragma once

#include "manager/Page.h"
#include "manager/setup/SetupStep.h"
#include "ui_SetupPage.h"

namespace manager {

// What a shop is set up with, in steps that can each be left out and done again.
class SetupPage : public Page {
    Q_OBJECT

public:
    explicit SetupPage(QWidget* parent);

    bool MayLeave() override;

    Ui::SetupPage ui;

protected:
    void Form_Load() override;
    void Form_Activate() override;

private:
    SetupStep& Step() const;
    void tabSteps_Changed();
    void cmdSave_Click();
    void cmdNext_Click();

    void FillStep();
    // Asks whether to store what was changed and is not stored yet; false when it can't be.
    bool LeaveStep();
    bool IsChanged() const;

    QStringList filled_;
    int shown_ = 0;
};

}  // namespace manager
