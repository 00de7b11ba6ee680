#include "screens/Manager.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTabWidget>

#include "cashier/DayClock.h"
#include "cashier/Restart.h"
#include "core/Installation.h"
#include "core/dbModule.h"
#include "delivery/Delivery.h"
#include "delivery/Trade.h"
#include "forms/ElidedLabel.h"
#include "manager/ManagerLogin.h"
#include "manager/ManagerWindow.h"
#include "manager/Start.h"
#include "manager/backup/RestoreForm.h"
#include "manager/drawer/DrawerPage.h"
#include "manager/goods/GoodsPage.h"
#include "manager/goods/PricesPage.h"
#include "manager/health/SupportForm.h"
#include "manager/labels/LabelChoice.h"
#include "manager/overview/InvoicesView.h"
#include "manager/overview/OverviewPage.h"
#include "manager/reports/ReportsPage.h"
#include "player/Keys.h"
#include "player/ModalWatch.h"
#include "store/StorePath.h"
#include "upkeep/Backup.h"
#include "upkeep/BackupPlace.h"
#include "upkeep/Restore.h"
#include "upkeep/health/SupportReport.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// "BackupPage" is shown as "manager-backup".
QString PictureOfPage(const QString& className) {
    return u"manager-"_s + className.chopped(4).toLower();
}

// A table of a wholesaler: goods that are there, new ones, and rows that can't be taken.
void ReadTable(const QString& shop) {
    QFile table(QFileInfo(shop).path() + u"/cjenik.csv"_s);
    if (!table.open(QIODevice::WriteOnly)) throw std::runtime_error("the table can't be written");
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
    dynamic_cast<manager::GoodsPage&>(*forms::FindForm(u"GoodsPage")).LookAt(table.fileName());
    drivers::Settle();
}

void RaisePrices() {
    auto& page = dynamic_cast<manager::PricesPage&>(*forms::FindForm(u"PricesPage"));
    page.ui.txtPercent->setText(u"5"_s);
    page.ui.cboEnding->setCurrentIndex(1);
    page.ui.cmdLook->click();
    drivers::Settle();
}

// What differs from machine to machine is always the same in a picture.
QString OnAnyMachine(QString report) {
    const std::pair<QString, QString> facts[] = {
        {u"Qt"_s, u"6.4.2"_s},
        {u"system"_s, u"Debian GNU/Linux 12 (bookworm)"_s},
        {u"kernel"_s, u"linux 6.1.0"_s},
        {u"processor"_s, u"x86_64"_s},
        {u"language"_s, u"en_US.UTF-8"_s},
        {u"disk of the folder"_s, u"182400 MB free of 243000 MB, ext4"_s},
        {u"engine"_s, u"SQLite 3.40.1"_s},
    };
    for (const auto& [name, value] : facts)
        report.replace(QRegularExpression(u"\\n  %1: [^\\n]*"_s.arg(name)), u"\n  %1: %2"_s.arg(name, value));
    return report;
}

// So does the folder that each run makes for itself.
void NameFoldersAsUsual(const QWidget& window, const QString& made) {
    const auto usual = [&made](QString text) {
        return text.replace(made + u"/older"_s, u"/home/shop"_s).replace(made, u"/home/shop"_s);
    };
    for (auto* label : window.findChildren<QLabel*>())
        if (auto* line = qobject_cast<forms::ElidedLabel*>(label); line && line->toolTip().contains(made))
            line->ShowWhole(usual(line->toolTip()));
        else if (label->text().contains(made))
            label->setText(usual(label->text()));
}

void ShowSupport(const QString& shop, const Cashier::Camera& camera) {
    manager::SupportForm form(OnAnyMachine(upkeep::SupportReport(shop)));
    form.Show();
    drivers::Settle();
    camera(form, u"manager-support"_s);
}

// The question before a backup is brought back, on a day on which more was sold.
void ShowRestore(const QString& shop, const Cashier::Camera& camera) {
    const auto backups = upkeep::ListBackups(TheInstallation.backup.folder, shop);
    if (backups.isEmpty()) throw std::runtime_error("no backup was made");
    upkeep::RestorePreview preview = upkeep::PreviewRestore(shop, backups.first());
    preview.days.first().one.invoices += 3;
    preview.days.first().one.takings += values::Money::FromWhole(27);
    manager::RestoreForm form(preview);
    form.Show();
    drivers::Settle();
    camera(form, u"manager-restore"_s);
}

void ShowSteps(manager::ManagerWindow& window, const Cashier::Camera& camera) {
    auto* steps = window.findChild<QTabWidget*>(u"tabSteps"_s);
    for (const QString& picture : {u"taxes"_s, u"units"_s, u"password"_s, u"users"_s, u"register"_s}) {
        steps->setCurrentIndex(steps->currentIndex() + 1);
        drivers::Settle();
        camera(window, u"manager-setup-"_s + picture);
    }
    steps->setCurrentIndex(0);
}

void ChooseGoods(const manager::ManagerWindow& window) {
    window.findChild<QComboBox*>(u"cboGroup"_s)->setCurrentIndex(1);
    window.findChild<QPushButton*>(u"cmdAddAll"_s)->click();
    window.findChild<QSpinBox*>(u"spnCopies"_s)->setValue(3);
    drivers::Settle();
}

// What comes of the goods that were chosen.
void ShowLabels(manager::ManagerWindow& window, const Cashier::Camera& camera) {
    auto* parts = window.findChild<QTabWidget*>(u"tabParts"_s);
    for (const QString& picture : {u"sheet"_s, u"prices"_s}) {
        parts->setCurrentIndex(parts->currentIndex() + 1);
        drivers::Settle();
        camera(window, u"manager-labels-"_s + picture);
    }
    auto* sheets = window.findChild<QComboBox*>(u"cboSheet"_s);
    sheets->setCurrentIndex(sheets->findText(manager::LabelChoice::tr("Own size on A4")));
    parts->setCurrentIndex(1);
    drivers::Settle();
    camera(window, u"manager-labels-own"_s);
}

// What a shop has that was set up well.
void BackUp(const QString& shop) {
    const QString backups = QFileInfo(shop).path() + u"/backups"_s;
    QDir().mkdir(backups);
    upkeep::ChooseBackupFolder(backups, shop);
    upkeep::MakeBackup(shop, upkeep::ReadBackupPlan(shop));
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
void LookAtOlderShop(const QString& shop, const QString& likeShop, const Cashier::Camera& camera) {
    delivery::MakeProgramFolder(shop, {.withDemo = true});
    QFile::copy(likeShop + u"/velton.ini"_s, shop + u"/velton.ini"_s);
    delivery::TradeForWeeks(*store::OpenMain(shop), values::Today());
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

void LookAtManager(const QString& shop, const Cashier::Camera& takePicture) {
    const Cashier::Camera camera = [&](QWidget& window, const QString& name) {
        NameFoldersAsUsual(window, QFileInfo(shop).path());
        takePicture(window, name);
    };
    const DayClock clock(QDateTime(QDate(2026, 11, 24), QTime(18, 5)));
    BackUp(shop);
    auto& window = LogIn(shop, camera);
    for (const auto& entry : manager::AllPages()) {
        // Of days alone they show too little.
        if (entry.className == u"OverviewPage" || entry.className == u"DrawerPage") continue;
        // What has to be done shows on a shop that sold more than it had.
        if (entry.className == u"HealthPage")
            MainStore().Execute(u"UPDATE Products SET Qty = -2 WHERE ProdCode = '3850101040859'"_s);
        PageOf<manager::Page>(window, entry.className);
        if (entry.className == u"GoodsPage") ReadTable(shop);
        if (entry.className == u"LabelsPage") ChooseGoods(window);
        if (entry.className == u"PricesPage") RaisePrices();
        if (auto* reports = dynamic_cast<manager::ReportsPage*>(forms::FindForm(entry.className)))
            reports->ui.cmdShow->click();
        camera(window, PictureOfPage(entry.className));
        if (entry.className == u"LabelsPage") ShowLabels(window, camera);
        if (entry.className == u"HealthPage") ShowSupport(shop, camera);
        if (entry.className == u"SetupPage") ShowSteps(window, camera);
        if (entry.className == u"BackupPage") ShowRestore(shop, camera);
    }
    LookAtOlderShop(QFileInfo(shop).path() + u"/older/VELTON"_s, shop, camera);
}

}  // namespace screens
