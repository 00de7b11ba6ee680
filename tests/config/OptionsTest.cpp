#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <QTabWidget>
#include <QToolBar>

#include "config/frmOptions.h"
#include "core/Session.h"
#include "core/Settings.h"
#include "core/dbModule.h"
#include "support/Office.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Get;
using drivers::Keys;
using drivers::Type;

namespace {

const auto Saved = u"Changes are saved."_s;

class OptionsTest : public drivers::OfficeTest {
protected:
    QString Row(const QString& field) const {
        auto row = OptionsStore().OpenRecordset(u"SELECT * FROM Options"_s);
        return row[field].TextOrEmpty();
    }
    void Restart() {
        Crash();
        LogIn(u"admin"_s);
    }
    // A click on a control, on whichever tab it lies.
    static void Click(const QWidget& screen, const QString& name) {
        auto* tabs = Get<QTabWidget>(screen, u"SSTab1");
        auto* control = Get<QAbstractButton>(screen, name);
        for (int tab = 0; tab < tabs->count(); ++tab)
            if (tabs->widget(tab)->isAncestorOf(control)) tabs->setCurrentIndex(tab);
        drivers::Click(control);
    }
    static bool Checked(const QWidget& screen, QStringView name) {
        return Get<QAbstractButton>(screen, name)->isChecked();
    }
    void Save(const QWidget& screen) {
        boxes_.Expect(Saved).Titled(u"Settings"_s).WithIcon(QMessageBox::Information);
        Click(screen, u"cmdOK"_s);
    }
};

TEST_F(OptionsTest, EachMenuEntryShowsItsTabFirst) {
    LogIn(u"admin"_s);
    int tab = 0;
    for (const QString& entry : {u"mnuPOSOprema"_s, u"mnuRacuna"_s, u"mnuProgram"_s}) {
        boxes_.ExpectForm(u"frmOptions"_s, [&](QWidget& screen) {
            EXPECT_EQ(Get<QTabWidget>(screen, u"SSTab1")->currentIndex(), tab++);
            drivers::Grab(screen, u"frmOptions-%1"_s.arg(tab));
            Keys(u"{Esc}");
        });
        mdiORVA::Window().Choose(entry);
    }
}

struct Choice {
    QString field;
    QString Settings::*setting;
    QStringList buttons;  // for "1", "2" and so on
};

const std::vector<Choice> Choices = {
    {u"PrinterZaRacun"_s,
     &Settings::PrinterZaRacun,
     {u"optPrinterZaRacun1"_s, u"optPrinterZaRacun2"_s, u"optPrinterZaRacun3"_s}},
    {u"Emulacija"_s, &Settings::Emulacija, {u"optEpson"_s, u"optStar"_s}},
    {u"PrinterZaIzvjestaj"_s,
     &Settings::PrinterZaIzvjestaj,
     {u"optPrinterZaIzvjestaj1"_s, u"optPrinterZaIzvjestaj2"_s, u"optPrinterZaIzvjestaj3"_s}},
    {u"TipRacuna"_s,
     &Settings::TipRacuna,
     {u"optTipRacuna1"_s, u"optTipRacuna2"_s, u"optTipRacuna3"_s, u"optTipRacuna4"_s, u"optTipRacuna5"_s,
      u"optTipRacuna6"_s, u"optTipRacuna7"_s}},
    {u"RekapPoreza"_s, &Settings::RekapPoreza, {u"optRekapPoreza1"_s, u"optRekapPoreza2"_s}},
};

TEST_F(OptionsTest, AnOptionWorksAtItsClickAndIsStoredBySaving) {
    for (const Choice& choice : Choices) Setting(choice.field, u"0"_s);
    LogIn(u"admin"_s);
    for (const Choice& choice : Choices)
        for (int i = 0; i < choice.buttons.size(); ++i) {
            SCOPED_TRACE(choice.buttons[i].toStdString());
            const QString before = QString::number(i);
            const QString text = QString::number(i + 1);
            Use<frmOptions>([&](frmOptions& screen) {
                for (int other = 0; other < choice.buttons.size(); ++other)
                    EXPECT_EQ(Checked(screen, choice.buttons[other]), other == i - 1) << "as it was saved last";
                Click(screen, choice.buttons[i]);
                EXPECT_EQ(TheSettings.*choice.setting + Row(choice.field), text + before);
                Save(screen);
            });
            EXPECT_EQ(Row(choice.field), text);
        }
}

TEST_F(OptionsTest, ALayoutThatWasOnlyClickedHoldsUntilTheNextStart) {
    LogIn(u"admin"_s);
    Use<frmOptions>([](frmOptions& screen) {
        Click(screen, u"optTipRacuna5"_s);
        Keys(u"{F12}");
        EXPECT_FALSE(screen.IsLoaded());
    });
    Keys(u"100{Enter}{F5}");
    EXPECT_TRUE(File(u"lpt1.prn"_s).contains(QByteArray(80, '_')));
    EXPECT_EQ(Row(u"TipRacuna"_s), u"1");
    Restart();
    EXPECT_EQ(TheSettings.TipRacuna, u"1");
}

// What the second button has set, the first cannot take back, though it shows as selected.
TEST_F(OptionsTest, TheFirstMonitorDoesNothing) {
    Setting(u"POSMonitor"_s, u"1"_s);
    LogIn(u"admin"_s);
    Use<frmOptions>([this](frmOptions& screen) {
        EXPECT_TRUE(Checked(screen, u"optPOSMonitor1"));
        Click(screen, u"optPOSMonitor2"_s);
        Click(screen, u"optPOSMonitor1"_s);
        EXPECT_TRUE(Checked(screen, u"optPOSMonitor1"));
        EXPECT_EQ(TheSettings.POSMonitor, u"2");
        Save(screen);
    });
    EXPECT_EQ(Row(u"POSMonitor"_s), u"2");
}

TEST_F(OptionsTest, ASaveStoresWhatItShouldAndSomeOfItWorksAtOnce) {
    const QStringList clicked = {u"chkRezacPapira"_s,     u"chkShowAmount"_s,          u"chkAskPassword"_s,
                                 u"chkKusur"_s,           u"chkPrikaziOdmah"_s,        u"chkTrakaRacunaFileDA"_s,
                                 u"chkFiskalniRacunDA"_s, u"chkNoviRacunAutomatski"_s, u"chkDisplejKupca"_s,
                                 u"chkPrintKasir"_s};
    const std::vector<std::pair<QString, QString>> stored = {{u"RezacPapira"_s, u"0"_s},
                                                             {u"StanjeKaseVidljivo"_s, u"0"_s},
                                                             {u"ChangeUser"_s, u"2"_s},
                                                             {u"Kusur"_s, u"True"_s},
                                                             {u"PrikaziOdmah"_s, u"False"_s},
                                                             {u"TrakaRacunaFileDA"_s, u"False"_s},
                                                             {u"FiskalniRacunDA"_s, u"1"_s},
                                                             {u"DisplejKupca"_s, u"True"_s},
                                                             {u"PrintKasir"_s, u"0"_s},
                                                             {u"Currency"_s, u"EURO"_s},
                                                             {u"FiskalniFile"_s, u""_s},
                                                             {u"MjestoProdaje"_s, u"Mostar"_s},
                                                             {u"Footer"_s, u"Hvala"_s},
                                                             {u"ServerName"_s, u"\\\\srv"_s},
                                                             {u"Kasa"_s, u"3"_s},
                                                             {u"TrakaRacunaFile"_s, u"x.txt"_s},
                                                             {u"NoviRacunAutomatski"_s, u"True"_s}};
    const auto running = [] {
        const Settings& now = TheSettings;
        return QStringList{
            now.RezacPapira,
            now.StanjeKaseVidljivo,
            now.ChangeUser,
            now.PrintKasir,
            now.Currency,
            now.MjestoProdaje,
            now.FiskalniRacunDA,
            now.FiskalniFile,
            now.Footer,
            now.ServerName,
            QString::number(now.Kasa),
            now.TrakaRacunaFile,
            u"%1%2%3%4"_s.arg(now.Kusur).arg(now.TrakaRacunaFileDA).arg(now.DisplejKupca).arg(now.NoviRacunAutomatski)};
    };
    Setting(u"TrakaRacunaFile"_s, u"x.txt"_s);
    LogIn(u"admin"_s);
    Use<frmOptions>([&](frmOptions& screen) {
        EXPECT_EQ(Box(screen, u"txtTrakaRacunaFile"), u"x.txt");
        EXPECT_EQ(Box(screen, u"txtNazivFirme") + Box(screen, u"txtTel"), TheSettings.NazivFirme + TheSettings.Tel);
        for (const QString& box : clicked) Click(screen, box);
        for (const auto& [box, text] : std::vector<std::pair<QString, QString>>{{u"txtCurrency"_s, u"EURO"_s},
                                                                                {u"txtFiskalniFile"_s, u"{Del}"_s},
                                                                                {u"txtTrakaRacunaFile"_s, u"y"_s},
                                                                                {u"txtMjestoProdaje"_s, u"Mostar"_s},
                                                                                {u"txtFooter"_s, u"Hvala"_s},
                                                                                {u"txtServerName"_s, u"\\\\srv"_s},
                                                                                {u"txtKasa"_s, u"3a"_s}})
            Type(screen, box, text);
        Save(screen);
        EXPECT_FALSE(screen.IsLoaded());
    });
    for (const auto& [field, text] : stored) EXPECT_EQ(Row(field), text) << field.toStdString();
    const QString delivered = u"Thank you for your visit"_s;
    EXPECT_EQ(running(), (QStringList{u"0"_s, u"0"_s, u"2"_s, u"0"_s, u"EURO"_s, u"Mostar"_s, u"0"_s, u"fiscal.txt"_s,
                                      delivered, u""_s, u"1"_s, u"invoices.txt"_s, u"1011"_s}));
    Restart();
    EXPECT_EQ(running(), (QStringList{u"0"_s, u"0"_s, u"2"_s, u"0"_s, u"EURO"_s, u"Mostar"_s, u"1"_s, u""_s, u"Hvala"_s,
                                      u"\\\\srv"_s, u"3"_s, u"invoices.txt"_s, u"1011"_s}));
    Use<frmOptions>([&](frmOptions& screen) {
        EXPECT_FALSE(Checked(screen, u"chkShowAmount"));
        EXPECT_TRUE(Checked(screen, u"chkAskPassword"));
        EXPECT_TRUE(Checked(screen, u"chkFiskalniRacunDA"));
        Type(screen, u"txtKasa", u"40000");  // with which the till would not start any more
        boxes_.Expect(u"6The number is too large."_s).Titled(u"Settings"_s);
        Click(screen, u"cmdOK"_s);
        EXPECT_EQ(Get<QTabWidget>(screen, u"SSTab1")->currentIndex(), 3);
        Type(screen, u"txtKasa", u"a3");
        drivers::Grab(screen, u"frmOptions-4"_s);
        Save(screen);
    });
    EXPECT_EQ(Row(u"Kasa"_s), u"0");
}

TEST_F(OptionsTest, ATextOfTwoLinesIsStoredAsItWasUnlessItIsEdited) {
    for (const QString& field : {u"Footer"_s, u"MjestoProdaje"_s, u"Currency"_s}) Setting(field, u"A\r\nB\n"_s);
    LogIn(u"admin"_s);
    Use<frmOptions>([this](frmOptions& screen) {
        Get<QTabWidget>(screen, u"SSTab1")->setCurrentIndex(1);
        Type(screen, u"txtMjestoProdaje", u"{End}!{Backspace}");
        Type(screen, u"txtFooter", u"{End}{Backspace}C");
        Save(screen);
    });
    EXPECT_EQ(Row(u"Footer"_s), u"A\r\nBC");
    EXPECT_EQ(Row(u"MjestoProdaje"_s) + Row(u"Currency"_s), u"A\r\nB\nA\r\nB\n");
}

// Space, pressed where the Tab key leads, must not choose another layout.
TEST_F(OptionsTest, TheFocusIsOnTheChosenOptionOfAGroup) {
    Setting(u"TipRacuna"_s, u"3"_s);
    LogIn(u"admin"_s);
    boxes_.ExpectForm(u"frmOptions"_s, [](QWidget& screen) {
        EXPECT_TRUE(Get<QWidget>(screen, u"optTipRacuna3")->hasFocus());
        Keys(u"{Tab}{Shift+Tab}{Space}");
        EXPECT_TRUE(Get<QWidget>(screen, u"optTipRacuna3")->hasFocus());
        EXPECT_EQ(TheSettings.TipRacuna, u"3");
        Keys(u"{Down}{Tab}{Enter}{Shift+Tab}{Space}");
        EXPECT_EQ(TheSettings.TipRacuna, u"4");
        Keys(u"{Esc}");
    });
    mdiORVA::Window().Choose(u"mnuProgram"_s);
}

TEST_F(OptionsTest, TheAmountShowsAndHidesAtOnce) {
    LogIn(u"admin"_s);
    const auto panel = [](int number) {
        return Get<QLabel>(mdiORVA::Window(), u"st1Panel%1"_s.arg(number))->isVisible();
    };
    Use<frmOptions>([&](frmOptions& screen) {
        Click(screen, u"chkShowAmount"_s);
        EXPECT_EQ(TheSettings.StanjeKaseVidljivo, u"0");
        EXPECT_FALSE(panel(4) || panel(5));
        Keys(u"{Space}");
        EXPECT_TRUE(panel(4) && panel(5));
        Keys(u"{Space}{F12}");
    });
    EXPECT_FALSE(panel(4) || panel(5)) << "leaving undoes nothing";
    EXPECT_EQ(Row(u"StanjeKaseVidljivo"_s), u"1");
}

TEST_F(OptionsTest, TheThirdFiscalModeStaysUntilItsBoxIsClicked) {
    Setting(u"FiskalniRacunDA"_s, u"2"_s);
    LogIn(u"admin"_s);
    Use<frmOptions>([this](frmOptions& screen) {
        drivers::Grab(screen, u"frmOptions-third-state"_s);
        Save(screen);
    });
    EXPECT_EQ(Row(u"FiskalniRacunDA"_s), u"2");
    Use<frmOptions>([this](frmOptions& screen) {
        auto* box = Get<QCheckBox>(screen, u"chkFiskalniRacunDA");
        for (int click = 0; click < 4; ++click) {
            EXPECT_EQ(box->checkState() == Qt::PartiallyChecked, click == 0);
            Click(screen, u"chkFiskalniRacunDA"_s);
        }
        EXPECT_FALSE(box->isChecked());
        Save(screen);
    });
    EXPECT_EQ(Row(u"FiskalniRacunDA"_s), u"0");
}

TEST_F(OptionsTest, AnInvoiceNumberGoesOnFromTheOneEntered) {
    LogIn(u"admin"_s);
    Use<frmOptions>([this](frmOptions& screen) {
        Get<QTabWidget>(screen, u"SSTab1")->setCurrentIndex(1);
        boxes_.Expect(u"Invoice No must be numeric."_s).Titled(u"Settings"_s).WithIcon(QMessageBox::Information);
        Click(screen, u"cmdUradi"_s);
        Type(screen, u"txtRacun", u"9999999999");
        boxes_.ExpectBeginning(u"6"_s);
        Click(screen, u"cmdUradi"_s);
        EXPECT_EQ(Shown(u"txtORNumber"), u"1");
        Type(screen, u"txtRacun", u"5.a,-0+9{Backspace}1{Enter}");
        EXPECT_EQ(Box(screen, u"txtRacun"), u"501");
        EXPECT_TRUE(Get<QWidget>(screen, u"cmdUradi")->hasFocus());
        boxes_.Expect(u"Invoice No changed."_s).Titled(u"Settings"_s).WithIcon(QMessageBox::Information);
        Keys(u"{Space}{F12}");
    });
    EXPECT_EQ(Shown(u"txtORNumber") + u'|' + Shown(u"txtInvoiceNumber"), u"501|1");
    Keys(u"100{Enter}{F5}100{Enter}{F5}");
    EXPECT_EQ(Rows(u"SELECT InvoiceID, OrNo FROM Invoices"_s), (QStringList{u"1|501"_s, u"2|502"_s}));
}

TEST_F(OptionsTest, F5DoesNothingAndTheToolBarDoesWhatTheButtonsDo) {
    LogIn(u"admin"_s);
    const auto tool = [](const QWidget& screen, const QString& key) {
        auto* action = Get<QAction>(screen, key);
        drivers::Click(Get<QToolBar>(screen, u"Tlbr1")->widgetForAction(action));
        return action->toolTip();
    };
    Use<frmOptions>([&](frmOptions& screen) {
        drivers::ExpectHelp(boxes_, u"\\helpVELTON.rtf"_s);
        Keys(u"{F5}{F1}");
        drivers::ExpectHelp(boxes_, u"\\helpVELTON.rtf"_s);
        EXPECT_EQ(tool(screen, u"help"_s), u"F1-Help");
        boxes_.Expect(Saved);
        EXPECT_EQ(tool(screen, u"save"_s), u"F5-Save");
    });
    Use<frmOptions>([&](frmOptions& screen) {
        EXPECT_EQ(tool(screen, u"close"_s), u"F-12 Close");
        EXPECT_FALSE(screen.IsLoaded());
    });
}

TEST_F(OptionsTest, AStoreThatFailsEndsTheProgram) {
    LogIn(u"admin"_s);
    OptionsStore().Execute(u"DELETE * FROM Options"_s);
    boxes_.ExpectBeginning(u"3021"_s).WithIcon(QMessageBox::Critical);
    mdiORVA::Window().findChild<QAction*>(u"mnuProgram"_s)->trigger();
    EXPECT_TRUE(forms::ProgramIsEnding());
    EXPECT_EQ(forms::ProgramExitCode(), 1);
}

TEST_F(OptionsTest, AnInvoiceNumberWithoutTheSalesScreenEndsTheProgram) {
    LogIn(u"admin"_s);
    Use<frmOptions>([this](frmOptions& screen) {
        Get<QTabWidget>(screen, u"SSTab1")->setCurrentIndex(1);
        Type(screen, u"txtRacun", u"7");
        Sales().hide();
        boxes_.ExpectBeginning(u"438"_s).WithIcon(QMessageBox::Critical);
        Click(screen, u"cmdUradi"_s);
    });
    EXPECT_EQ(forms::ProgramExitCode(), 1);
}

}  // namespace
