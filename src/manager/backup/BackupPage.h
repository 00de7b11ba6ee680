#pragma once

#include "manager/PageOfBoxes.h"
#include "ui_BackupPage.h"
#include "upkeep/BackupList.h"

namespace manager {

// Where the backups go and how many are kept, which there are, one made at once, and the way back.
class BackupPage : public PageOfBoxes {
    Q_OBJECT

public:
    explicit BackupPage(QWidget* parent);

    Ui::BackupPage ui;

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Fill() override;
    bool Store() override;

private:
    void cmdChoose_Click();
    void cmdSave_Click();
    void cmdBackup_Click();
    void cmdRestore_Click();

    void ShowAll();
    void ReadFolder();
    void ShowFolder();
    void ShowState();
    void ShowBackups(const QString& chosen);
    void Restore(const upkeep::BackupFacts& backup);

    QList<upkeep::BackupFacts> backups_;
    bool isOnSameDisk_ = false;
};

}  // namespace manager
