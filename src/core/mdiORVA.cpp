#include "core/mdiORVA.h"

#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

#include "core/AccessLevels.h"
#include "core/ImageList.h"
#include "values/Clock.h"
#include "values/Error.h"
#include "values/Format.h"

using namespace Qt::StringLiterals;

namespace {

struct Entry {
    const char16_t* name;
    QString caption;  // null: a separator
};

struct Menu {
    Entry head;
    std::vector<Entry> entries;
};

// In the language that is chosen when they are built.
std::vector<Menu> Menus() {
    return {
        {{u"mnuDatabase", mdiORVA::tr("&Products")},
         {{u"cmdNoviArtikal", mdiORVA::tr("New Product")},
          {u"mnuProducts", mdiORVA::tr("View - Edit - Delete Products")},
          {u"cmdlin10", {}},
          {u"mnuStanjeArtikala", mdiORVA::tr("Items in stock")},
          {u"mnuPopis", mdiORVA::tr("Products list")}}},
        {{u"mnuRac", mdiORVA::tr("&Invoices")},
         {{u"mnuPregledRacuna", mdiORVA::tr("Search Invoice")}, {u"mnuListRacun", mdiORVA::tr("Invoices")}}},
        {{u"mnuZakljucak", mdiORVA::tr("&End Report")},
         {{u"mnuTrenutnoKasa", mdiORVA::tr("End Report ...")},
          {u"mnuPregledZakljucaka1", mdiORVA::tr("Preview End Reports")},
          {u"mnuPregledZakljucaka", mdiORVA::tr("Preview End Reports ")}}},
        {{u"mnuPodesavanje", mdiORVA::tr("&Settings")},
         {{u"mnuPOSOprema", mdiORVA::tr("Program")},
          {u"mnuRacuna", mdiORVA::tr("Invoice")},
          {u"mnuProgram", mdiORVA::tr("Invoice deatails")},
          {u"cmdKliktabla", mdiORVA::tr("Click Table")},
          {u"cmdlin1", {}},
          {u"mnuUsers", mdiORVA::tr("Users")},
          {u"mnuLozinka", mdiORVA::tr("Password")},
          {u"mnuLin2", {}},
          {u"mnuPorez", mdiORVA::tr("Taxes")},
          {u"cmdFirma", mdiORVA::tr("My Firm")},
          {u"mnuKupci", mdiORVA::tr("Customers - Suppliers")}}},
        {{u"mnuView", mdiORVA::tr("&Reports")},
         {{u"mnuProdajaPR", mdiORVA::tr("Sale by Invoices")},
          {u"mnuProdajaPoKasiru", mdiORVA::tr("Sale by Cashiers")},
          {u"mnuPreProducts", mdiORVA::tr("Sale by Products")},
          {u"mnuCrta1", {}},
          {u"mnuKIF", mdiORVA::tr("Invoices for tax report")},
          {u"mnuPorezPoRacunima", mdiORVA::tr("Tax Report by Invoices")},
          {u"mnuPorezPoStopama", mdiORVA::tr("TAX Report")},
          {u"mnuCrta3", {}},
          {u"mnuTrakaRacuna", mdiORVA::tr("Printed Invoices Ribbon")},
          {u"mnuCrta2", {}},
          {u"mnuViewUsersTable", mdiORVA::tr("Working Time ")}}},
        {{u"mnuFiskalni", mdiORVA::tr("&Fiscal printer")},
         {{u"cmdUplatadepozita", mdiORVA::tr("Deposit - payment ")},
          {u"cmdIsplatadepozita", mdiORVA::tr("Deposit - payout")},
          {u"mnuCrta5", {}},
          {u"cmdXizvjestaj", mdiORVA::tr("X report - Overview")},
          {u"cmdZizvjestaj", mdiORVA::tr("Z report - Daily report")},
          {u"mnuCrta6", {}},
          {u"cmdPeriodicniIzvjestaj", mdiORVA::tr("Fiscal Periodic Report")},
          {u"cmdReklamiranjeRacuna", mdiORVA::tr("Invoice Reclamation")}}},
        {{u"mnuHelp", mdiORVA::tr("&Help")},
         {{u"mnuHelp1", mdiORVA::tr("Help")}, {u"mnuAbout", mdiORVA::tr("About program")}}},
    };
}

mdiORVA* mainWindow = nullptr;

}  // namespace

mdiORVA& mdiORVA::Window() {
    if (!mainWindow) mainWindow = new mdiORVA;
    return *mainWindow;
}

void mdiORVA::Discard() {
    delete mainWindow;
    mainWindow = nullptr;
}

mdiORVA::mdiORVA() {
    setObjectName(u"mdiORVA"_s);
    setWindowTitle(u"VELTON POS"_s);
    BuildMenu();
    BuildStatusBar();
    timer1_ = new QTimer(this);
    timer1_->setObjectName(u"Timer1"_s);
    connect(timer1_, &QTimer::timeout, this, &mdiORVA::Timer1_Timer);
    timer1_->start(1000);
    Timer1_Timer();
}

mdiORVA::~mdiORVA() = default;

void mdiORVA::BuildMenu() {
    for (const Menu& table : Menus()) {
        QMenu* menu = menuBar()->addMenu(table.head.caption);
        menu->setObjectName(QString::fromUtf16(table.head.name));
        for (const Entry& entry : table.entries) {
            QAction* action = entry.caption.isNull() ? menu->addSeparator() : menu->addAction(entry.caption);
            const QString name = QString::fromUtf16(entry.name);
            action->setObjectName(name);
            connect(action, &QAction::triggered, this, [this, name] { forms::Run([&] { Choose(name); }, Caption()); });
        }
    }
}

void mdiORVA::BuildStatusBar() {
    statusBar()->setObjectName(u"st1"_s);
    statusBar()->setSizeGripEnabled(false);
    for (int number = 1; number <= 5; ++number) {
        auto* panel = new QLabel;
        panel->setObjectName(u"st1Panel%1"_s.arg(number));
        if (number == 5) panel->setProperty("role", u"figure"_s);
        panels_ << panel;
        if (number <= 3)
            statusBar()->addWidget(panel);
        else
            statusBar()->addPermanentWidget(panel);
    }
    panels_[0]->setText(u"VELTON"_s);
    panels_[3]->setText(tr("Total: >>"));
}

void mdiORVA::Timer1_Timer() {
    panels_[1]->setText(tr("Time: %1").arg(values::Format(values::TimeNow(), u"hh:mm:ss")));
    panels_[2]->setText(tr("Date: %1").arg(values::Format(values::Today(), u"dd.mm.yyyy")));
}

void mdiORVA::Choose(const QString& name) {
    if (const auto action = entries_.value(name)) action();
}

void mdiORVA::SetEntry(const QString& name, std::function<void()> action) {
    entries_[name] = std::move(action);
}

void mdiORVA::SetEntryEnabled(const QString& name, bool enabled) {
    if (auto* menu = findChild<QMenu*>(name))
        menu->setEnabled(enabled);
    else if (auto* action = findChild<QAction*>(name))
        action->setEnabled(enabled);
    else
        throw values::Error(values::NotSupported, tr("The main window has no entry %1.").arg(name));
}

void mdiORVA::ApplyAccessLevel(const QString& accLevel) {
    for (const QString& name : EntriesSwitchedOff(accLevel)) SetEntryEnabled(name, false);
    for (const QString& name : EntriesSwitchedOn(accLevel)) SetEntryEnabled(name, true);
}

QIcon mdiORVA::Image(const QString& key, const QColor& ink) {
    return DrawImage(key, ink);
}

QString mdiORVA::RunningTotal() const {
    return panels_[4]->text();
}

void mdiORVA::SetRunningTotal(const QString& text) {
    panels_[4]->setText(text);
}

void mdiORVA::ShowRunningTotal(bool visible) {
    panels_[3]->setVisible(visible);
    panels_[4]->setVisible(visible);
}
