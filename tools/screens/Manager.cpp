#include "screens/Manager.h"

#include <QMessageBox>

#include "cashier/DayClock.h"
#include "cashier/Restart.h"
#include "delivery/Delivery.h"
#include "delivery/Trade.h"
#include "manager/DrawerPage.h"
#include "manager/InvoicesView.h"
#include "manager/ManagerLogin.h"
#include "manager/ManagerWindow.h"
#include "manager/OverviewPage.h"
#include "manager/Start.h"
#include "player/Keys.h"
#include "player/ModalWatch.h"
#include "store/StorePath.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// "BackupPage" is shown as "manager-backup".
QString PictureOfPage(const QString& className) {
    return u"manager-"_s + className.chopped(4).toLower();
}

manager::ManagerWindow& LogIn(const QString& shop, const Cashier::Camera& camera) {
    drivers::ForgetProgram();
    manager::StartManager(shop);
    drivers::Settle();
    auto& login = dynamic_cast<manager::ManagerLogin&>(*forms::FindForm(u"ManagerLogin"));
    login.ui.cboUser->setCurrentText(u"admin"_s);
    if (camera) camera(login, u"manager-login"_s);
    login.ui.txtPassword->setText(u"1234"_s);
    login.ui.cmdLogin->click();
    drivers::Settle();
    return dynamic_cast<manager::ManagerWindow&>(*forms::FindForm(u"ManagerWindow"));
}

template <typename T>
T& PageOf(manager::ManagerWindow& window, const QString& className) {
    window.ShowPage(className);
    drivers::Settle();
    auto& page = dynamic_cast<T&>(*forms::FindForm(className));
    while (page.IsBusy()) drivers::Settle();
    return page;
}

// Weeks and months in figures, the invoices behind one of them, and a drawer that is counted.
void LookAtOlderShop(const QString& shop, const Cashier::Camera& camera) {
    delivery::MakeProgramFolder(shop, {.withDemo = true});
    delivery::TradeForWeeks(*store::Database::Open(store::MainPlace(shop), store::MainSchema()), values::Today());
    auto& window = LogIn(shop, {});
    QStringList views{u"manager-invoices"_s, u"manager-receipt"_s};
    const drivers::ModalWatch watch(
        [&](QWidget& modal) {
            if (auto* box = qobject_cast<QMessageBox*>(&modal)) {
                box->accept();
            } else if (auto* view = qobject_cast<manager::InvoicesView*>(&modal)) {
                view->ui.lstInvoices->Select(4);
                camera(*view, views[0]);
                view->ui.cmdReceipt->click();
                drivers::Settle();
                camera(*view, views[1]);
                view->Unload();
            } else {
                camera(modal, u"manager-notesandcoins"_s);
                drivers::CloseByForce(modal);
            }
            return true;
        },
        [](const QWidget&) {});

    auto& overview = PageOf<manager::OverviewPage>(window, u"OverviewPage"_s);
    camera(window, u"manager-overview"_s);
    auto* takings = window.findChild<manager::Chart*>(u"chtTakings"_s);
    takings->setFocus();
    drivers::Keys(u"{Home}{Right}{Right}"_s);
    window.findChild<manager::Chart*>(u"chtTaxes"_s)->setFocus();
    drivers::Settle();
    camera(window, u"manager-overview-below"_s);
    takings->setFocus();
    overview.ui.cmdTable->click();
    overview.ui.cmdWeek->click();
    drivers::Settle();
    camera(window, u"manager-overview-tables"_s);
    overview.ui.cmdTable->click();
    takings->setFocus();
    drivers::Keys(u"{End}{Enter}"_s);

    auto& drawer = PageOf<manager::DrawerPage>(window, u"DrawerPage"_s);
    const auto count = [&](std::initializer_list<const char16_t*> pieces, const QString& remark) {
        drawer.ui.txtPutIn->setText(u"100.00"_s);
        drawer.ui.txtTakenOut->setText(u"50.00"_s);
        drawer.ui.txtRemark->setText(remark);
        int number = 0;
        for (const char16_t* each : pieces)
            window.findChild<QLineEdit*>(u"txtPieces%1"_s.arg(number++))->setText(QString::fromUtf16(each));
        drivers::Settle();
    };
    count({u"", u"1", u"1", u"2", u"3", u"2", u"4", u"6", u"3", u"9", u"4", u"5"}, u"at noon"_s);
    drawer.ui.cmdKeep->click();
    count({u"", u"1", u"1", u"2", u"3", u"2", u"4", u"6", u"2", u"8", u"4", u"5"}, {});
    camera(window, u"manager-drawer"_s);
    drawer.ui.cmdKeep->click();
    drawer.ui.cmdPieces->click();
    drawer.ui.tabParts->setCurrentIndex(1);
    drivers::Settle();
    camera(window, u"manager-drawer-earlier"_s);
    drivers::ForgetProgram();
}

}  // namespace

void LookAtManager(const QString& shop, const Cashier::Camera& camera) {
    const DayClock clock(QDateTime(QDate(2026, 11, 24), QTime(18, 5)));
    auto& window = LogIn(shop, camera);
    for (const auto& entry : manager::AllPages()) {
        // Of days alone they show too little.
        if (entry.className == u"OverviewPage" || entry.className == u"DrawerPage") continue;
        PageOf<manager::Page>(window, entry.className);
        camera(window, PictureOfPage(entry.className));
    }
    LookAtOlderShop(shop + u"-of-weeks"_s, camera);
}

}  // namespace screens
