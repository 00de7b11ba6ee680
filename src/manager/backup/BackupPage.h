#pragma once

#include "manager/Page.h"
#include "ui_BackupPage.h"
#include "upkeep/BackupFolder.h"

namespace manager {

// Where the backups of the register are kept, which there are, and the way back to one of them.
class BackupPage : public Page {
    Q_OBJECT

public:
    explicit BackupPage(QWidget* parent);

    Ui::BackupPage ui;

protected:
    void Form_Load() override;
    void Form_Activate() override;

private:
    void cmdChoose_Click();
    void cmdSave_Click();
    void cmdBackup_Click();
    void cmdRestore_Click();

    void ShowPlan();
    void ShowBackups();

    std::vector<upkeep::Backup> backups_;
};

}  // namespace manager
