#include "screens/Manager.h"

#include "cashier/Restart.h"
#include "manager/ManagerLogin.h"
#include "manager/ManagerWindow.h"
#include "manager/Start.h"
#include "player/Keys.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// "BackupPage" is shown as "manager-backup".
QString PictureOfPage(const QString& className) {
    return u"manager-"_s + className.chopped(4).toLower();
}

}  // namespace

void LookAtManager(const QString& shop, const Cashier::Camera& camera) {
    drivers::ForgetProgram();
    manager::StartManager(shop);
    drivers::Settle();
    auto& login = dynamic_cast<manager::ManagerLogin&>(*forms::FindForm(u"ManagerLogin"));
    login.ui.cboUser->setCurrentText(u"admin"_s);
    camera(login, u"manager-login"_s);
    login.ui.txtPassword->setText(u"1234"_s);
    login.ui.cmdLogin->click();
    drivers::Settle();
    auto& window = dynamic_cast<manager::ManagerWindow&>(*forms::FindForm(u"ManagerWindow"));
    for (const auto& entry : manager::AllPages()) {
        window.ShowPage(entry.className);
        drivers::Settle();
        const auto* page = dynamic_cast<const manager::Page*>(forms::FindForm(entry.className));
        while (page && page->IsBusy()) drivers::Settle();
        camera(window, PictureOfPage(entry.className));
    }
    drivers::ForgetProgram();
}

}  // namespace screens
