#pragma once

#include "manager/PageOfBoxes.h"
#include "manager/setup/SetupStep.h"
#include "ui_SetupPage.h"

namespace manager {

// What a shop is set up with, in steps that can each be left out and done again.
class SetupPage : public PageOfBoxes {
    Q_OBJECT

public:
    explicit SetupPage(QWidget* parent);

    Ui::SetupPage ui;

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Fill() override { Step().Fill(); }
    bool Store() override { return Step().Store(); }
    const QWidget& Part() const override { return Step(); }

private:
    SetupStep& Step() const;
    void tabSteps_Changed();
    void cmdSave_Click();
    void cmdNext_Click();

    int shown_ = 0;
};

}  // namespace manager
