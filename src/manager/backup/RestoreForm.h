#pragma once

#include "forms/Form.h"
#include "ui_RestoreForm.h"
#include "upkeep/Restore.h"

namespace manager {

// What a backup would change, day by day, before the owner agrees to it.
class RestoreForm : public forms::Form {
    Q_OBJECT

public:
    RestoreForm(const upkeep::Backup& backup, const std::vector<upkeep::DayDifference>& days);

    bool IsAgreed() const { return isAgreed_; }

    Ui::RestoreForm ui;

private:
    void cmdReplace_Click();
    void cmdLeave_Click();

    bool isAgreed_ = false;
};

}  // namespace manager
