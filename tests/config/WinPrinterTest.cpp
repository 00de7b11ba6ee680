#include <QComboBox>
#include <QPageSetupDialog>
#include <QPrinterInfo>
#include <QRadioButton>
#include <QTimer>

#include "config/frmMreza.h"
#include "config/frmOptions.h"
#include "config/frmWinPrinter.h"
#include "core/Session.h"
#include "core/Settings.h"
#include "core/dbModule.h"
#include "output/PagePrinter.h"
#include "support/Office.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Get;
using drivers::Keys;

namespace {

class WinPrinterTest : public drivers::OfficeTest {
protected:
    ~WinPrinterTest() override { output::ThePagePrinter().SetPaper({}); }

    // Size and font, as stored and as they run.
    QString Fonts() const {
        auto row = OptionsStore().OpenRecordset(u"SELECT VelFont, Font FROM Options"_s);
        return QStringList{row[0].Text(), row[1].Text(), TheSettings.VelFont, TheSettings.Font}.join(u'|');
    }
    QString Network() const {
        auto row = OptionsStore().OpenRecordset(u"SELECT ServerName, Kasa FROM Options"_s);
        return QStringList{row[0].Text(), row[1].Text(), TheSettings.ServerName, QString::number(TheSettings.Kasa)}
            .join(u'|');
    }
    // The page setup that comes up next: A5 is chosen and taken, or not.
    static void AnswerPaper(bool taken) {
        QTimer::singleShot(100, qApp, [taken] {
            auto* dialog = qobject_cast<QPageSetupDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            drivers::Grab(*dialog, u"page-setup"_s);
            auto* sizes = Get<QComboBox>(*dialog, u"pageSizeCombo");
            sizes->setCurrentIndex(sizes->findText(u"A5"_s));
            taken ? dialog->accept() : dialog->reject();
        });
    }
};

TEST_F(WinPrinterTest, ASizeWorksAtItsClickAndAFontAtTheSave) {
    LogIn(u"admin"_s);
    Use<frmWinPrinter>([this](frmWinPrinter& screen) {
        EXPECT_TRUE(Get<QRadioButton>(screen, u"optVelFont2")->isChecked());
        Keys(u"{Tab}");
        EXPECT_EQ(QApplication::focusWidget()->objectName(), u"optVelFont2");
        EXPECT_EQ(drivers::List(screen, u"List1"),
                  (std::vector<QStringList>{
                      {u"Courier New"_s}, {u"Courier New Bold"_s}, {u"OCR-B 10 BT"_s}, {u"Lucida Console"_s}}));
        drivers::Click(Get<QRadioButton>(screen, u"optVelFont3"));
        drivers::ClickRow(Get<forms::ListView>(screen, u"List1"), 3);
        EXPECT_EQ(Box(screen, u"txtFont"), u"Lucida Console");
        drivers::Grab(screen, u"frmWinPrinter"_s);
        Keys(u"{Enter}");
        EXPECT_TRUE(screen.IsLoaded());
        Keys(u"{Esc}");
        EXPECT_FALSE(screen.IsLoaded());
    });
    EXPECT_EQ(Fonts(), u"9|Courier New|10|Courier New");
    Crash();
    LogIn(u"admin"_s);
    EXPECT_EQ(TheSettings.VelFont, u"9");
    Use<frmWinPrinter>([](frmWinPrinter& screen) {
        drivers::Click(Get<QRadioButton>(screen, u"optVelFont1"));
        Get<QWidget>(screen, u"List1")->setFocus();
        Keys(u"{Down}{Down}{F5}");
        EXPECT_FALSE(screen.IsLoaded());
    });
    EXPECT_EQ(Fonts(), u"8|Courier New Bold|8|Courier New Bold");
}

TEST_F(WinPrinterTest, ASizeWithoutButtonAndAFontThatNobodyHasAreStoredAsTheyStand) {
    Setting(u"VelFont"_s, u"12"_s);
    LogIn(u"admin"_s);
    Use<frmWinPrinter>([](frmWinPrinter& screen) {
        Keys(u"{Tab}{Shift+Tab}");  // to arrive at an option is not to choose it
        for (const auto* button : screen.findChildren<QRadioButton*>()) EXPECT_FALSE(button->isChecked());
        drivers::Type(screen, u"txtFont", u"Nobody Sans{F5}");
    });
    EXPECT_EQ(Fonts(), u"12|Nobody Sans|12|Nobody Sans");
}

// The settings were read before the printer's dialog wrote into the same row.
TEST_F(WinPrinterTest, ASaveOfTheSettingsKeepsTheFontChosenMeanwhile) {
    LogIn(u"admin"_s);
    Use<frmOptions>([this](frmOptions& screen) {
        boxes_.ExpectForm(u"frmWinPrinter"_s, [](QWidget& printer) {
            drivers::Click(Get<QRadioButton>(printer, u"optVelFont3"));
            drivers::Click(Get<QPushButton>(printer, u"cmdOK"));
        });
        drivers::Click(Get<QPushButton>(screen, u"cmdPodesiWinPrinter"));
        boxes_.Expect(u"Changes are saved."_s);
        drivers::Click(Get<QPushButton>(screen, u"cmdOK"));
    });
    EXPECT_EQ(Fonts(), u"10|Courier New|10|Courier New");
}

TEST_F(WinPrinterTest, ThePaperChosenIsThatOfTheNextReceipt) {
    Setting(u"PrinterZaRacun"_s, u"3"_s);
    LogIn(u"admin"_s);
    const auto sell = [this](int number) {
        Keys(u"100{Enter}{F5}");
        return File(u"printouts/20261124-104207-%1.pdf"_s.arg(number));
    };
    Use<frmWinPrinter>([](frmWinPrinter& screen) {
        AnswerPaper(false);
        drivers::Click(Get<QPushButton>(screen, u"cmdPrinter"));
        EXPECT_EQ(output::ThePagePrinter().Paper().pageSize().id(), QPageSize::A4);
        AnswerPaper(true);
        drivers::Click(Get<QPushButton>(screen, u"cmdPrinter"));
        EXPECT_TRUE(Get<QWidget>(screen, u"cmdPrinter")->hasFocus());
    });
    const QMarginsF margins = output::ThePagePrinter().Paper().margins(QPageLayout::Millimeter);
    EXPECT_NEAR(margins.left(), 12, 0.1);
    if (!QPrinterInfo::defaultPrinter().isNull()) GTEST_SKIP() << "this machine has a printer";
    EXPECT_TRUE(sell(1).contains("/MediaBox [0 0 420."));
}

TEST_F(WinPrinterTest, TheNetworkIsStoredAndWorksFromTheNextStart) {
    LogIn(u"admin"_s);
    Use<frmMreza>([this](frmMreza& screen) {
        drivers::Grab(screen, u"frmMreza"_s);
        drivers::ExpectHelp(boxes_, u"\\Podesavanje.rtf"_s);
        boxes_.Expect(u"6The number is too large."_s);
        Keys(u"{F1}/srv/shop{Enter}40000{F5}{Home}{Del}{Del}{Del}{Del}{Del}3a{F5}");
        EXPECT_FALSE(screen.IsLoaded());
    });
    EXPECT_EQ(Network(), u"/srv/shop|3||1");
    Use<frmMreza>([](frmMreza& screen) {
        Keys(u"elsewhere{Esc}");
        EXPECT_FALSE(screen.IsLoaded());
    });
    Crash();
    LogIn(u"admin"_s);
    EXPECT_EQ(Network(), u"/srv/shop|3|/srv/shop|3");
}

}  // namespace
