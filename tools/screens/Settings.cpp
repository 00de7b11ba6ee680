#include <QTabWidget>

#include "config/frmMreza.h"
#include "screens/Tour.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

const auto Options = u"frmOptions"_s;

void ShowTabs(Cashier& cashier) {
    cashier.TakePicture(u"settings-program"_s);
    cashier.Within(u"frmWinPrinter"_s, [&] {
        cashier.TakePicture(u"settings-printer"_s);
        cashier.Press(u"{F12}"_s);
    });
    cashier.Click(Options, u"cmdPodesiWinPrinter"_s);
    auto* tabs = cashier.Screen(Options)->findChild<QTabWidget*>(u"SSTab1"_s);
    for (const QString& picture : {u"settings-invoice"_s, u"settings-details"_s, u"settings-network"_s}) {
        tabs->setCurrentIndex(tabs->currentIndex() + 1);
        cashier.TakePicture(picture);
    }
    tabs->setCurrentIndex(0);
}

}  // namespace

void Tour::Configure() {
    cashier.Visit(u"mnuPOSOprema"_s, Options, [this] {
        ShowTabs(cashier);
        // Counts from the click on, for as long as the program runs.
        cashier.Fill(Options, u"chkAskPassword"_s, u"{Space}"_s);
        cashier.Press(u"{F12}"_s);
    });
    cashier.Within(u"frmChangeUserSimple"_s, [this] {
        cashier.Press(u"ana"_s);
        cashier.TakePicture(u"change-cashier-simple"_s);
        cashier.Press(u"{Esc}"_s);
    });
    cashier.PressAndAnswer(u"{F6}"_s);

    // No menu entry opens this one.
    cashier.Within(u"frmMreza"_s, Glance(u"network"_s));
    frmMreza().ShowModal();
    cashier.ExpectAllDone();
}

void Tour::ReadHelp() {
    cashier.Visit(u"mnuHelp1"_s, u"frmHelp"_s, Glance(u"help"_s));
    cashier.Visit(u"mnuAbout"_s, u"frmAbout"_s, Glance(u"about"_s, u"{Esc}"_s));
}

}  // namespace screens
