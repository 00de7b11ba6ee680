#pragma once

#include "manager/Page.h"
#include "ui_BackupPage.h"
#include "upkeep/BackupList.h"

namespace manager {

// Where the backups go, which there are, one made at once, and the way back.
class BackupPage : public Page {
    Q_OBJECT

public:
    explicit BackupPage(QWidget* parent);

    Ui::BackupPage ui;

protected:
    void Form_Load() override { Form_Activate(); }
    // A till may have made one meanwhile.
    void Form_Activate() override;

private:
    void ShowFolder();
    void ShowLast();
    void ShowBackups();
    void cmdFolder_Click();
    void cmdNow_Click();
    void cmdRestore_Click();
    void Restore(const upkeep::BackupFacts& backup);

    QList<upkeep::BackupFacts> backups_;
};

}  // namespace manager
