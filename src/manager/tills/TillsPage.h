#pragma once

#include <optional>

#include "manager/Page.h"
#include "ui_TillsPage.h"
#include "upkeep/server/ServerAddress.h"
#include "upkeep/server/ServerShop.h"

namespace manager {

// Where the shop lies, so that tills on several machines work on it: its way to a server and back, a register that
// joins it there, and pictures from register to register.
class TillsPage : public Page {
    Q_OBJECT

public:
    explicit TillsPage(QWidget* parent);

    Ui::TillsPage ui;

protected:
    void Form_Load() override;
    void Form_Activate() override;

private:
    void Address_Change();
    void cmdLook_Click();
    void cmdMove_Click();
    void cmdJoin_Click();
    void cmdBack_Click();
    void cmdTake_Click();
    void cmdGive_Click();

    upkeep::ServerAddress Address() const;
    bool IsComplete();
    void ShowPlace();
    void ShowFound();
    void Change(const QString& doing, const std::function<QString(const upkeep::Progress&)>& work);
    void BringPictures(const QString& there, const QString& here);

    std::optional<upkeep::ShopThere> found_;  // under the address in the boxes, once it was looked at
};

}  // namespace manager
