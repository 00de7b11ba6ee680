#include <QApplication>
#include <QDateEdit>
#include <QGroupBox>

#include "ScreenCase.h"
#include "receipts/FiscalReports.h"
#include "receipts/frmDepozit.h"
#include "receipts/frmFiskalniPeriodicniIzvjestaj.h"
#include "receipts/frmReklamiranjeRacuna.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Get;
using drivers::Keys;

namespace {

class FiscalScreensTest : public ReceiptScreenTest {
protected:
    FiscalScreensTest() {
        Setting(u"FiskalniRacunDA"_s, u"0"_s);
        LogIn();
    }
    QByteArray Fiscal() const { return File(u"fiscal.txt"_s); }
};

TEST_F(FiscalScreensTest, ADepositIsRegisteredByEnterAndByF12) {
    boxes_.ExpectForm(u"frmDepozit"_s, [](QWidget& form) {
        EXPECT_EQ(form.windowTitle(), u"Deposit - payment ");
        EXPECT_EQ(Get<QGroupBox>(form, u"Frame1")->title(), u"Deposit payment - only for fiscal printers");
        EXPECT_EQ(Get<QWidget>(form, u"cmdClose")->toolTip(), u"Register amount of deposit - F12");
        Keys(u"a12,5-x");
        EXPECT_EQ(Box(form, u"txtPercent"), u"12.5");
        drivers::Grab(form, u"frmDepozit"_s);
        Keys(u"{Enter}");
    });
    boxes_.Expect(u"Paid deposit."_s).Titled(u"Deposit - payment "_s);
    forms::Run([] { frmDepozit().ShowModal(); }, {});
    boxes_.ExpectForm(u"frmDepozit"_s, [](QWidget&) { Keys(u"3{Tab}{F12}"); });
    boxes_.Expect(u"Paid deposit."_s);
    forms::Run([] { frmDepozit().ShowModal(); }, {});
    EXPECT_EQ(Fiscal(), "I,1,________,_,__;0;12.50;;;;\r\nI,1,________,_,__;0;3.00;;;;\r\n");
}

TEST_F(FiscalScreensTest, APayoutFollowsTheUsersSeparator) {
    values::SetUserLocale(QLocale(u"de_DE"_s));
    boxes_.ExpectForm(u"frmDepozitIsplata"_s, [](QWidget& form) {
        EXPECT_EQ(form.windowTitle(), u"Deposit payout");
        EXPECT_EQ(Get<QGroupBox>(form, u"Frame1")->title(), u"Deposit payout - only for fiscal printers");
        drivers::Grab(form, u"frmDepozitIsplata"_s);
        Keys(u"1000.255{Enter}");
    });
    boxes_.Expect(u"Deposit payout."_s).Titled(u"Deposit payout"_s);
    forms::Run([] { frmDepozitIsplata().ShowModal(); }, {});
    EXPECT_EQ(Fiscal(), "I,1,________,_,__;1;1000,26;;;;\r\n");
}

TEST_F(FiscalScreensTest, WhatIsNoNumberIsToldAndGoesBackToTheBox) {
    Use<frmDepozit>([this](frmDepozit& form) {
        for (const QString& typed : {u""_s, u"1.2.3"_s, u"."_s}) {
            drivers::Type(form, u"txtPercent", typed);
            boxes_.Expect(u"Deposit must be numeric."_s).WithIcon(QMessageBox::Information).Titled(form.Caption());
            Keys(u"{Tab}{Enter}");
            EXPECT_EQ(QApplication::focusWidget()->objectName(), u"txtPercent") << typed.toStdString();
        }
    });
    Use<frmReklamiranjeRacuna>([this](frmReklamiranjeRacuna& form) {
        boxes_.Expect(u"Invoice No must be numeric."_s).WithIcon(QMessageBox::Information).Titled(form.Caption());
        Keys(u"{Tab}{Space}");
        EXPECT_EQ(QApplication::focusWidget()->objectName(), u"txtPercent");
    });
    EXPECT_TRUE(Fiscal().isEmpty());
}

TEST_F(FiscalScreensTest, AnAmountBeyondMoneyIsAnErrorAndWritesNothing) {
    Use<frmDepozit>([this](frmDepozit&) {
        boxes_.ExpectBeginning(u"6"_s);
        Keys(u"9999999999999999{F12}");
    });
    EXPECT_FALSE(forms::ProgramIsEnding());
    EXPECT_TRUE(Fiscal().isEmpty());
}

TEST_F(FiscalScreensTest, AWithdrawalHasNoKeyOfItsOwn) {
    boxes_.ExpectForm(u"frmReklamiranjeRacuna"_s, [this](QWidget& form) {
        EXPECT_EQ(form.windowTitle(), u"Withdrawal invoice - only fiscal printer");
        EXPECT_EQ(Get<QWidget>(form, u"cmdClose")->toolTip(), u"Withdraw invoice - F12");
        Keys(u"123{Enter}{F12}{Esc}");
        EXPECT_TRUE(form.isVisible());
        EXPECT_TRUE(Fiscal().isEmpty());
        drivers::Grab(form, u"frmReklamiranjeRacuna"_s);
        Keys(u"{Tab}{Space}");
    });
    boxes_.Expect(u"Invoice withdraw."_s).Titled(u"Withdrawal invoice - only fiscal printer"_s);
    forms::Run([] { frmReklamiranjeRacuna().ShowModal(); }, {});
    EXPECT_EQ(Fiscal(), "K,1,______,_,__;000123\r\n");
}

TEST_F(FiscalScreensTest, ThePeriodicReportTakesTheDaysAsTheyStandAndStaysOpen) {
    boxes_.ExpectForm(u"frmFiskalniPeriodicniIzvjestaj"_s, [this](QWidget& form) {
        EXPECT_EQ(form.windowTitle(), u"Periodic report for fiscal printer");
        drivers::Grab(form, u"frmFiskalniPeriodicniIzvjestaj"_s);
        boxes_.Expect(u"Periodic report is done."_s);
        Keys(u"{Enter}{Enter}{Space}");
        EXPECT_EQ(Fiscal(), "V,1,______,_,__;O171126,241126\r\n");
        Get<QDateEdit>(form, u"DTPicker1")->setDate(QDate(2027, 1, 2));
        boxes_.Expect(u"Periodic report is done."_s);
        drivers::Click(Get<QWidget>(form, u"Command1"));
        EXPECT_TRUE(Fiscal().endsWith("O020127,241126\r\n"));
        EXPECT_TRUE(form.isVisible());
        Keys(u"{Esc}");
    });
    forms::Run([] { frmFiskalniPeriodicniIzvjestaj().ShowModal(); }, {});
    EXPECT_EQ(Fiscal().count('\n'), 2);
}

TEST_F(FiscalScreensTest, XAndZReportsAreAppendedEachTime) {
    boxes_.Expect(u"X report is done."_s).Expect(u"X report is done."_s).Expect(u"Z report - daily report is done."_s);
    for (const auto report : {XReport, XReport, ZReport}) forms::Run(report, {});
    const QByteArray x = "E,1,______,_,__;x report;www.velton.example;\r\nX,1,______,_,__;\r\n";
    EXPECT_EQ(Fiscal(), x + x +
                            "E,1,______,_,__;daily report;www.velton.example;\r\nZ,1,______,_,__;\r\n"
                            "E,1,______,_,__;www.velton.example;;\r\n");
}

class FiscalFileFaultTest : public ReceiptScreenTest {
protected:
    FiscalFileFaultTest() {
        Setting(u"FiskalniFile"_s, u"nowhere\\fiscal.txt"_s);
        LogIn();
    }
};

TEST_F(FiscalFileFaultTest, EndsTheProgramFromAScreen) {
    Use<frmDepozitIsplata>([this](frmDepozitIsplata&) {
        boxes_.ExpectBeginning(u"76"_s).WithIcon(QMessageBox::Critical);
        Keys(u"5{F12}");
    });
    ExpectEndOfProgram();
}

TEST_F(FiscalFileFaultTest, EndsTheProgramFromTheMenu) {
    boxes_.ExpectBeginning(u"76"_s).WithIcon(QMessageBox::Critical);
    forms::Run(ZReport, {});
    ExpectEndOfProgram();
}

}  // namespace
