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
    const char16_t* caption;  // null: a separator
};

struct Menu {
    Entry head;
    std::vector<Entry> entries;
};

const std::vector<Menu> Menus = {
    {{u"mnuDatabase", u"&Products"},
     {{u"cmdNoviArtikal", u"New Product"},
      {u"mnuProducts", u"View - Edit - Delete Products"},
      {u"cmdlin10", nullptr},
      {u"mnuStanjeArtikala", u"Items in stock"},
      {u"mnuPopis", u"Products list"}}},
    {{u"mnuRac", u"&Invoices"}, {{u"mnuPregledRacuna", u"Search Invoice"}, {u"mnuListRacun", u"Invoices"}}},
    {{u"mnuZakljucak", u"&End Report"},
     {{u"mnuTrenutnoKasa", u"End Report ..."},
      {u"mnuPregledZakljucaka1", u"Preview End Reports"},
      {u"mnuPregledZakljucaka", u"Preview End Reports "}}},
    {{u"mnuPodesavanje", u"&Settings"},
     {{u"mnuPOSOprema", u"Program"},
      {u"mnuRacuna", u"Invoice"},
      {u"mnuProgram", u"Invoice deatails"},
      {u"cmdKliktabla", u"Click Table"},
      {u"cmdlin1", nullptr},
      {u"mnuUsers", u"Users"},
      {u"mnuLozinka", u"Password"},
      {u"mnuLin2", nullptr},
      {u"mnuPorez", u"Taxes"},
      {u"cmdFirma", u"My Firm"},
      {u"mnuKupci", u"Customers - Suppliers"}}},
    {{u"mnuView", u"&Reports"},
     {{u"mnuProdajaPR", u"Sale by Invoices"},
      {u"mnuProdajaPoKasiru", u"Sale by Cashiers"},
      {u"mnuPreProducts", u"Sale by Products"},
      {u"mnuCrta1", nullptr},
      {u"mnuKIF", u"Invoices for tax report"},
      {u"mnuPorezPoRacunima", u"Tax Report by Invoices"},
      {u"mnuPorezPoStopama", u"TAX Report"},
      {u"mnuCrta3", nullptr},
      {u"mnuTrakaRacuna", u"Printed Invoices Ribbon"},
      {u"mnuCrta2", nullptr},
      {u"mnuViewUsersTable", u"Working Time "}}},
    {{u"mnuFiskalni", u"&Fiscal printer"},
     {{u"cmdUplatadepozita", u"Deposit - payment "},
      {u"cmdIsplatadepozita", u"Deposit - payout"},
      {u"mnuCrta5", nullptr},
      {u"cmdXizvjestaj", u"X report - Overview"},
      {u"cmdZizvjestaj", u"Z report - Daily report"},
      {u"mnuCrta6", nullptr},
      {u"cmdPeriodicniIzvjestaj", u"Fiscal Periodic Report"},
      {u"cmdReklamiranjeRacuna", u"Invoice Reclamation"}}},
    {{u"mnuHelp", u"&Help"}, {{u"mnuHelp1", u"Help"}, {u"mnuAbout", u"About program"}}},
};

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
    for (const Menu& table : Menus) {
        QMenu* menu = menuBar()->addMenu(QString::fromUtf16(table.head.caption));
        menu->setObjectName(QString::fromUtf16(table.head.name));
        for (const Entry& entry : table.entries) {
            QAction* action = entry.caption ? menu->addAction(QString::fromUtf16(entry.caption)) : menu->addSeparator();
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
    panels_[3]->setText(u"Total: >>"_s);
}

void mdiORVA::Timer1_Timer() {
    panels_[1]->setText(u"Time: "_s + values::Format(values::TimeNow(), u"hh:mm:ss"));
    panels_[2]->setText(u"Date: "_s + values::Format(values::Today(), u"dd.mm.yyyy"));
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
        throw values::Error(values::NotSupported, u"The main window has no entry %1."_s.arg(name));
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
