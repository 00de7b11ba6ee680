#pragma once

#include "forms/Form.h"
#include "ui_BackupRestore.h"
#include "upkeep/Restore.h"

namespace manager {

// Shows day by day what a restore would change before it is done. It does nothing itself.
class BackupRestore : public forms::Form {
    Q_OBJECT

public:
    explicit BackupRestore(const upkeep::RestorePreview& preview);

    bool IsWanted() const { return isWanted_; }

    Ui::BackupRestore ui;

private:
    void ShowDays(const QList<upkeep::DayInTwo>& days);
    void cmdReplace_Click();
    void cmdCancel_Click();

    bool isWanted_ = false;
};

}  // namespace manager
