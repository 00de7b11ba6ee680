#include "screens/Manager.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTabWidget>

#include "cashier/DayClock.h"
#include "cashier/Restart.h"
#include "core/dbModule.h"
#include "manager/ManagerLogin.h"
#include "manager/ManagerWindow.h"
#include "manager/Start.h"
#include "manager/backup/RestoreForm.h"
#include "manager/goods/GoodsPage.h"
#include "manager/goods/PricesPage.h"
#include "manager/health/SupportForm.h"
#include "manager/overview/InvoicesForm.h"
#include "player/Keys.h"
#include "upkeep/RegisterBackup.h"
#include "upkeep/health/SupportReport.h"
#include "values/IniEdit.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// "BackupPage" is shown as "manager-backup".
QString PictureOfPage(const QString& className) {
    return u"manager-"_s + className.chopped(4).toLower();
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

void ShowSupport(const QString& shop, const Cashier::Camera& camera) {
    manager::SupportForm form(OnAnyMachine(upkeep::SupportReport(shop)));
    form.Show();
    drivers::Settle();
    camera(form, u"manager-support"_s);
}

void ShowInvoices(const Cashier::Camera& camera) {
    manager::InvoicesForm form(
        {.what = u"Fri, 9 to 10 o'clock"_s, .from = QDate(2026, 11, 20), .to = QDate(2026, 11, 24)});
    form.Show();
    drivers::Settle();
    camera(form, u"manager-invoices"_s);
}

// The day after the backup, on which more was sold.
void ShowRestore(const QString& shop, const Cashier::Camera& camera) {
    const upkeep::BackupPlan plan = upkeep::ReadBackupPlan(shop);
    auto backup = upkeep::BackupsIn(upkeep::FolderOfRegister(plan.place, shop)).front();
    const auto day = [](int invoices, qint64 hundredths) {
        return upkeep::DayTotal{.day = QDate(2026, 11, 25),
                                .invoices = invoices,
                                .takings = values::Money::FromUnits(100 * hundredths),
                                .tax = {}};
    };
    manager::RestoreForm form(backup, {{.day = QDate(2026, 11, 25), .inStore = day(4, 3120), .inBackup = day(0, 0)}});
    form.Show();
    drivers::Settle();
    camera(form, u"manager-restore"_s);
}

void ShowSteps(manager::ManagerWindow& window, const Cashier::Camera& camera) {
    auto* steps = window.findChild<QTabWidget*>(u"tabSteps"_s);
    for (const QString& picture : {u"taxes"_s, u"password"_s, u"users"_s, u"register"_s}) {
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
    sheets->setCurrentIndex(sheets->findText(u"Own size on A4"_s));
    parts->setCurrentIndex(1);
    drivers::Settle();
    camera(window, u"manager-labels-own"_s);
}

// A table with a bit of everything.
void ReadTable(const QString& shop) {
    auto& page = dynamic_cast<manager::GoodsPage&>(*forms::FindForm(u"GoodsPage"));
    const QString path = QFileInfo(shop).path() + u"/prices.csv"_s;
    QFile table(path);
    if (!table.open(QIODevice::WriteOnly)) throw std::runtime_error("the table can't be written");
    table.write(
        "Artikelnummer;Bezeichnung;VK-Preis;Bestand;MwSt;Einheit\n3850101040019;Mlijeko 2,8 % 1 l;2,45;;P;Stk.\n"
        "4001;K\xC3\xA4se jung;14,90;6,5;P;kg\n4002;Brot;\"1,2,3\";;P;Stk.\n3,85E+12;Wasser;1,10;;P;Stk.\n");
    table.close();
    page.ui.txtFile->setText(path);
    for (const int separator : {1, 0}) page.ui.cboSeparator->setCurrentIndex(separator);
    drivers::Settle();
}

// What a shop has that was set up well.
void BackUp(const QString& shop) {
    const QString place = QFileInfo(shop).path() + u"/stick"_s;
    upkeep::TakeAsPlace(place);
    values::IniEdit ini(shop + u"/velton.ini"_s);
    ini.Set(u"backup"_s, u"folder"_s, place);
    ini.Save();
    upkeep::BackUpRegister(shop, place, {});
}

}  // namespace

void LookAtManager(const QString& shop, const Cashier::Camera& camera) {
    drivers::ForgetProgram();
    const DayClock clock(QDateTime(QDate(2026, 11, 25), QTime(8, 10)));
    BackUp(shop);
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
        // What has to be done shows on a shop that sold more than it had.
        if (entry.className == u"HealthPage")
            MainStore().Execute(u"UPDATE Products SET Qty = -2 WHERE ProdCode = '3850101040859'"_s);
        window.ShowPage(entry.className);
        drivers::Settle();
        if (entry.className == u"GoodsPage") ReadTable(shop);
        if (entry.className == u"LabelsPage") ChooseGoods(window);
        for (auto* box : window.findChildren<QSpinBox*>(u"spnPieces4"_s)) box->setValue(6);
        if (auto* prices = dynamic_cast<manager::PricesPage*>(forms::FindForm(entry.className)))
            prices->ui.txtPercent->setText(u"4"_s);
        camera(window, PictureOfPage(entry.className));
        if (entry.className == u"LabelsPage") ShowLabels(window, camera);
        if (entry.className == u"HealthPage") ShowSupport(shop, camera);
        if (entry.className == u"OverviewPage") ShowInvoices(camera);
        if (entry.className == u"SetupPage") ShowSteps(window, camera);
        if (entry.className == u"BackupPage") ShowRestore(shop, camera);
    }
    drivers::ForgetProgram();
}

}  // namespace screens
