#include "screens/Manager.h"

#include <QFile>

#include "cashier/Restart.h"
#include "manager/ManagerLogin.h"
#include "manager/ManagerWindow.h"
#include "manager/Start.h"
#include "manager/goods/GoodsPage.h"
#include "manager/goods/PricesPage.h"
#include "player/Keys.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// "BackupPage" is shown as "manager-backup".
QString PictureOfPage(const QString& className) {
    return u"manager-"_s + className.chopped(4).toLower();
}

// A table of a wholesaler: goods that are there, new ones, and rows that can't be taken.
void LookAtGoods(manager::ManagerWindow& window, const QString& shop, const Cashier::Camera& camera) {
    QFile table(shop + u"/cjenik.csv"_s);
    if (!table.open(QIODevice::WriteOnly)) return;
    table.write(
        u"EAN;Naziv;JM;MPC;PDV;Zaliha;Grupa\r\n"
        "3850101040019;Mineralna voda 0,5 l;pcs;1,25;17;96;Pića\r\n"
        "3850101040088;Mineralna voda 1,5 l;pcs;1,60;17;60;Pića\r\n"
        "3850101040156;Izvorska voda 0,5 l;pcs;1,05;17;120;Pića\r\n"
        "3850101099994;Limunada 0,33 l;pcs;1,90;17;24;Pića\r\n"
        "3850101099987;Kruška 1 kg;kg;3,49;17;12,5;Voće\r\n"
        "3,85E+12;Ledeni čaj 1,5 l;pcs;2,20;17;30;Pića\r\n"
        "3850101099970;Sok od bazge;pcs;2.4;17;18;Pića\r\n"_s.toUtf8());
    table.close();
    window.ShowPage(u"GoodsPage"_s);
    dynamic_cast<manager::GoodsPage&>(*forms::FindForm(u"GoodsPage")).LookAt(table.fileName());
    drivers::Settle();
    camera(window, u"manager-goods-preview"_s);
    table.remove();

    window.ShowPage(u"PricesPage"_s);
    auto& prices = dynamic_cast<manager::PricesPage&>(*forms::FindForm(u"PricesPage"));
    prices.ui.txtPercent->setText(u"5"_s);
    prices.ui.cboEnding->setCurrentIndex(1);
    prices.ui.cmdLook->click();
    drivers::Settle();
    camera(window, u"manager-prices-preview"_s);
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
    LookAtGoods(window, shop, camera);
    drivers::ForgetProgram();
}

}  // namespace screens
