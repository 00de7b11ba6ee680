#include <QLineEdit>

#include "core/Settings.h"
#include "masterdata/shop/frmFirma.h"
#include "support/Office.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Get;
using drivers::Keys;

namespace {

const auto Stored = u"SELECT Adresa, Tel, Ziro FROM Company"_s;
const auto Saved = u"Data modified."_s;

class CompanyTest : public drivers::OfficeTest {
protected:
    QStringList SellAndReadHeading() {
        drivers::Type(Sales(), u"txtProdCode", u"100{Enter}{F5}");
        const QString receipt = QString::fromLatin1(File(u"lpt1.prn"_s));
        return receipt.mid(receipt.indexOf(TheSettings.NazivFirme)).split(u"\r\n"_s).mid(0, 4);
    }
};

TEST_F(CompanyTest, WhatIsSavedHeadsTheNextReceiptButNotTheNextStart) {
    LogIn(u"admin"_s);
    const Settings before = TheSettings;
    Use<frmFirma>([this](frmFirma& form) {
        EXPECT_EQ(Box(form, u"txtNazivFirme"), TheSettings.NazivFirme);
        EXPECT_EQ(Box(form, u"txtJIB"), TheSettings.JIB);
        EXPECT_FALSE(Get<QLineEdit>(form, u"txtNazivFirme")->isEnabled());
        drivers::Grab(form, u"frmFirma"_s);
        boxes_.Expect(Saved).Titled(u"My details - My firm"_s).WithIcon(QMessageBox::Information);
        Keys(u"Titova 1{Enter}{Del}{F5}");
        EXPECT_EQ(Rows(Stored), QStringList{u"Titova 1||Text1"_s});
        boxes_.Expect(Saved);
        Keys(u"{Enter}1610000{F5}{Enter}{F12}");
    });
    EXPECT_EQ(Rows(Stored), QStringList{u"Titova 1||1610000"_s});
    EXPECT_EQ(SellAndReadHeading(), (QStringList{before.NazivFirme, u"Titova 1"_s, before.JIB, u""_s}));
    Crash();
    LogIn(u"admin"_s);
    EXPECT_EQ(TheSettings.Adresa, before.Adresa);
    EXPECT_EQ(TheSettings.Tel, before.Tel);
}

TEST_F(CompanyTest, AnEmptyAddressIsRefused) {
    LogIn(u"admin"_s);
    for (const bool hasRow : {true, false}) {
        if (!hasRow) Run(u"DELETE FROM Company"_s);
        const QStringList rows = Rows(Stored);
        const QString address = TheSettings.Adresa;
        Use<frmFirma>([this](frmFirma&) {
            boxes_.Expect(u"Address can't be empty."_s).WithIcon(QMessageBox::Information);
            Keys(u"{Del}{Enter}555{F5}{Esc}");
        });
        EXPECT_EQ(Rows(Stored), rows);
        EXPECT_EQ(TheSettings.Adresa, address);
    }
}

TEST_F(CompanyTest, WithoutARowOneIsAddedAndChangedFromThenOn) {
    LogIn(u"admin"_s);
    Run(u"DELETE FROM Company"_s);
    Use<frmFirma>([this](frmFirma&) {
        boxes_.Expect(Saved).Expect(Saved);
        Keys(u"First{F5}{Home}{Shift+End}Second{F5}");
    });
    EXPECT_EQ(Rows(Stored), QStringList{u"Second|"_s + TheSettings.Tel + u"|Text1"_s});
}

}  // namespace
