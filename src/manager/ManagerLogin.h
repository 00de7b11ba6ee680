#pragma once

#include "forms/Form.h"
#include "ui_ManagerLogin.h"

namespace manager {

// Asks for the name and password of a user of level 3 before anything is shown of the shop.
class ManagerLogin : public forms::Form {
    Q_OBJECT

public:
    explicit ManagerLogin(std::function<void()> loggedIn);

    Ui::ManagerLogin ui;

protected:
    void Form_Load() override;

private:
    void cmdLogin_Click();
    void cmdClose_Click();

    std::function<void()> loggedIn_;
};

}  // namespace manager
