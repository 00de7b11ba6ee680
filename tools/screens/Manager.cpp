#include "screens/Manager.h"

#include <QRegularExpression>
#include <QSpinBox>
#include <QTabWidget>

#include "cashier/DayClock.h"
#include "cashier/Restart.h"
#include "manager/HealthReport.h"
#include "manager/ManagerLogin.h"
#include "manager/ManagerWindow.h"
#include "manager/Start.h"
#include "player/Keys.h"
#include "upkeep/CheckRegister.h"
#include "upkeep/health/HelpReport.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// "BackupPage" is shown as "manager-backup".
QString PictureOfPage(const QString& className) {
    return u"manager-"_s + className.chopped(4).toLower();
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

// Goods are chosen, and what comes of them is shown.
void ShowLabels(manager::ManagerWindow& window, const Cashier::Camera& camera) {
    window.findChild<QComboBox*>(u"cboGroup"_s)->setCurrentIndex(1);
    window.findChild<QPushButton*>(u"cmdAddAll"_s)->click();
    window.findChild<QSpinBox*>(u"spnCopies"_s)->setValue(3);
    drivers::Settle();
    camera(window, u"manager-labels"_s);
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

// What differs from machine to machine is always the same in a picture.
QString OnAnyMachine(QString report) {
    const std::pair<QString, QString> facts[] = {
        {u"Qt"_s, u"6.4.2"_s},
        {u"system"_s, u"Debian GNU/Linux 12 (bookworm)"_s},
        {u"kernel"_s, u"linux 6.1.0"_s},
        {u"processor"_s, u"x86_64"_s},
        {u"language"_s, u"en_US.UTF-8"_s},
        {u"disk of the folder"_s, u"182400 MB free of 243000 MB, ext4"_s},
        {u"main store"_s, u"SQLite 3.40.1"_s},
        {u"options store"_s, u"SQLite 3.40.1"_s},
    };
    for (const auto& [name, value] : facts)
        report.replace(QRegularExpression(u"\\n  %1: [^\\n]*"_s.arg(name)), u"\n  %1: %2"_s.arg(name, value));
    return report;
}

void ShowReport(const QString& shop, const Cashier::Camera& camera) {
    manager::HealthReport report(OnAnyMachine(upkeep::HelpReport(shop, upkeep::CheckRegister(shop))));
    report.Show();
    drivers::Settle();
    camera(report, u"manager-health-report"_s);
    report.Unload();
}

}  // namespace

void LookAtManager(const QString& shop, const Cashier::Camera& camera) {
    drivers::ForgetProgram();
    const DayClock clock(QDateTime(QDate(2026, 11, 25), QTime(8, 10)));
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
        if (entry.className != u"LabelsPage") camera(window, PictureOfPage(entry.className));
        if (entry.className == u"SetupPage") ShowSteps(window, camera);
        if (entry.className == u"LabelsPage") ShowLabels(window, camera);
        if (entry.className == u"HealthPage") ShowReport(shop, camera);
    }
    drivers::ForgetProgram();
}

}  // namespace screens
