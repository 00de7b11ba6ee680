#pragma once

#include "forms/Form.h"
#include "ui_RestoreForm.h"
#include "upkeep/Restore.h"

namespace manager {

// Shows day by day what a restore would change before it is done. It does nothing itself.
class RestoreForm : public forms::Form {
    Q_OBJECT

public:
    explicit RestoreForm(const upkeep::RestorePreview& preview);

    bool IsAgreed() const { return isAgreed_; }

    Ui::RestoreForm ui;

private:
    void ShowDays(const QList<upkeep::DayInTwo>& days);
    void cmdReplace_Click();
    void cmdLeave_Click();

    bool isAgreed_ = false;
};

}  // namespace manager
