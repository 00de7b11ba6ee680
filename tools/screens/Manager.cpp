#include "screens/Manager.h"

#include <QDir>

#include "cashier/Restart.h"
#include "core/Installation.h"
#include "manager/BackupPage.h"
#include "manager/BackupRestore.h"
#include "manager/ManagerLogin.h"
#include "manager/ManagerWindow.h"
#include "manager/Start.h"
#include "player/Keys.h"
#include "upkeep/BackupPlace.h"
#include "upkeep/Restore.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// "BackupPage" is shown as "manager-backup".
QString PictureOfPage(const QString& className) {
    return u"manager-"_s + className.chopped(4).toLower();
}

// A backup that is there, and the question before it is restored.
void LookAtBackups(manager::ManagerWindow& window, const QString& shop, const Cashier::Camera& camera) {
    const QString stick = shop + u"-stick"_s;
    QDir().mkdir(stick);
    upkeep::ChooseBackupFolder(stick, shop);
    ReadInstallation();
    for (const auto& page : {u"HealthPage"_s, u"BackupPage"_s}) {
        window.ShowPage(page);
        drivers::Settle();
    }
    auto& page = dynamic_cast<manager::BackupPage&>(*forms::FindForm(u"BackupPage"));
    page.ui.cmdNow->click();
    drivers::Settle();
    camera(window, u"manager-backup-made"_s);
    const auto backups = upkeep::ListBackups(stick, shop);
    if (backups.isEmpty()) throw std::runtime_error("no backup was made");
    upkeep::RestorePreview preview = upkeep::PreviewRestore(shop, backups.first());
    preview.days.first().one.invoices += 3;  // sold since
    preview.days.first().one.takings += values::Money::FromWhole(27);
    manager::BackupRestore question(preview);
    question.Show();
    drivers::Settle();
    camera(question, u"manager-backup-restore"_s);
    question.Unload();
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
        camera(window, PictureOfPage(entry.className));
    }
    LookAtBackups(window, shop, camera);
    drivers::ForgetProgram();
}

}  // namespace screens
