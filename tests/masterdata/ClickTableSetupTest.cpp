#include <QApplication>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "forms/ListView.h"
#include "masterdata/clicktable/frmKlikTabla.h"
#include "store/StorePath.h"
#include "support/Office.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Click;
using drivers::Keys;
using drivers::Type;

namespace {

const auto Caption = u"CLICK TABLE edit"_s;
const auto Question = u"Old settings will be lost,\nKlick Table will be set automatic"_s;
const auto PlacedQuery = u"SELECT ProdCode, Tab FROM Products WHERE Tab > -1"_s;
const auto TabsQuery = u"SELECT TabDescription FROM TabControl WHERE TabControl < 4"_s;

// The set-up stays open beside the test, as it does beside the till.
class ClickTableSetupTest : public drivers::OfficeTest {
protected:
    void OpenSetup() {
        LogIn(u"admin"_s);
        frmKlikTabla::Open();
        drivers::Settle();
    }
    forms::Form& Screen() const {
        auto* form = forms::FindForm(u"frmKlikTabla");
        if (!form) throw std::runtime_error("the set-up is not loaded");
        return *form;
    }
    TouchButton* Button(int index) const { return drivers::Get<TouchButton>(Screen(), u"Command2_%1"_s.arg(index)); }
    QString Face(int index) const { return Button(index)->Tag() + u": "_s + Button(index)->text(); }
    QTabWidget* Tabs() const { return drivers::Get<QTabWidget>(Screen(), u"SSTab1"); }
    void Pick(int row) { drivers::ClickRow(drivers::Get<forms::ListView>(Screen(), u"lv1"), row); }
    QStringList Codes() const {
        QStringList codes;
        for (const auto& row : drivers::List(Screen(), u"lv1")) codes << row[0];
        return codes;
    }
    // Products with the codes 1001, 1002, ... behind the shop's five.
    void AddProducts(int count) const {
        const auto main = store::Database::Open(store::MainPlace(folder.path()), store::MainSchema());
        store::Database::Batch batch(*main);
        auto rs = main->OpenRecordset(u"SELECT * FROM Products"_s);
        for (int code = 1001; code <= 1000 + count; ++code) {
            rs.AddNew();
            rs[u"ProdCode"] = QString::number(code);
            rs[u"UnitPrice"] = 1;
            rs.Update();
        }
        batch.Commit();
    }
};

TEST_F(ClickTableSetupTest, PlacesTheProductClickedInTheListOnce) {
    OpenSetup();
    EXPECT_EQ(drivers::List(Screen(), u"lv1")[1], (QStringList{u"200"_s, u"Jabuke crvene"_s, u"3.90"_s}));
    Click(Button(4));  // the first row is marked, but nobody picked it
    Pick(1);
    Click(Button(5));
    Click(Button(6));
    EXPECT_EQ(Face(5), u"200: Jabuke crvene = 3.90");
    EXPECT_EQ(Face(6), u": ");
    EXPECT_EQ(Rows(PlacedQuery), QStringList{u"200|5"_s});

    Pick(1);
    Click(Button(31));
    EXPECT_EQ(Face(5), u"200: Jabuke crvene = 3.90") << "until the refresh";
    EXPECT_EQ(Rows(PlacedQuery), QStringList{u"200|31"_s});
    Keys(u"{F3}");
    EXPECT_EQ(Face(5), u": ");
    EXPECT_EQ(Face(31), u"200: Jabuke crvene = 3.9") << "the price as it comes";

    Pick(0);
    Click(Button(31));
    EXPECT_EQ(Face(31), u"100: Cola = 1.50");
    EXPECT_EQ(Rows(PlacedQuery), (QStringList{u"100|31"_s, u"200|31"_s})) << "the old product keeps its place";
}

TEST_F(ClickTableSetupTest, TheRightButtonTakesOffAndTheProductWaitsUnderTheOldName) {
    Run(u"UPDATE Products SET Tab = 2 WHERE ProdCode = '300'"_s);
    OpenSetup();
    Pick(0);
    Click(Button(7), Qt::RightButton);  // free
    Click(Button(2), Qt::RightButton);
    EXPECT_EQ(Face(2), u": ");
    EXPECT_TRUE(Rows(PlacedQuery).isEmpty());
    Click(Button(9));
    EXPECT_EQ(Face(9), u"300: Cola = 1.50");
    EXPECT_EQ(Rows(PlacedQuery), QStringList{u"300|9"_s});
}

TEST_F(ClickTableSetupTest, TheKeyboardAlonePicksPlacesAndTakesOff) {
    OpenSetup();
    Keys(u"{Enter}{Enter}{Down}{Space}{Enter}{Enter}{Enter}{Right}");  // to the strip of tabs, to the second one
    EXPECT_EQ(Tabs()->currentIndex(), 1);
    Keys(u"{Enter}{Down}{Right}{Space}");
    EXPECT_EQ(Face(37), u"200: Jabuke crvene = 3.90");
    EXPECT_EQ(Rows(PlacedQuery), QStringList{u"200|37"_s});
    drivers::Grab(Screen(), u"frmKlikTabla"_s);
    Keys(u"{Del}");
    EXPECT_TRUE(Rows(PlacedQuery).isEmpty());
    frmKlikTabla::Open();  // comes to the front, there is one
    Keys(u"{F5}{F12}");
    EXPECT_FALSE(forms::FindForm(u"frmKlikTabla"));
}

TEST_F(ClickTableSetupTest, TheAutomaticPlacementLeavesTheLastButtonFree) {
    AddProducts(315);
    Run(u"UPDATE Products SET Tab = 0 WHERE ProdCode = '1315'"_s);
    OpenSetup();
    boxes_.Expect(Question, QMessageBox::No).Titled(Caption).WithIcon(QMessageBox::Question);
    Keys(u"{F4}");
    EXPECT_EQ(Rows(PlacedQuery), QStringList{u"1315|0"_s});

    boxes_.Expect(Question, QMessageBox::Yes);
    Keys(u"{F4}");
    const QStringList placed = Rows(PlacedQuery);
    ASSERT_EQ(placed.size(), 319);
    EXPECT_EQ(placed.first(), u"100|0");
    EXPECT_EQ(placed.last(), u"1314|318") << "the 320th product is off the table";
    EXPECT_EQ(Face(0), u"100: Cola = 1.5");
    EXPECT_EQ(Face(318), u"1314:  = 1");
    EXPECT_EQ(Face(319), u": ");
    EXPECT_EQ(Codes().size(), 320);
}

TEST_F(ClickTableSetupTest, AfterASearchOnlyTheProductsFoundArePlaced) {
    Run(u"UPDATE Products SET Tab = 1 WHERE ProdCode = '100'"_s);
    OpenSetup();
    Type(Screen(), u"cboTemp", u"00");
    EXPECT_EQ(Codes(), (QStringList{u"100"_s, u"200"_s, u"300"_s, u"400"_s, u"3850104003217"_s}));
    Click(drivers::Get<QWidget>(Screen(), u"Option2"));
    EXPECT_TRUE(Codes().isEmpty());
    Type(Screen(), u"cboTemp", u"3");
    EXPECT_EQ(Codes(), (QStringList{u"300"_s, u"3850104003217"_s})) << "codes are searched while the names are shown";
    boxes_.Expect(Question, QMessageBox::Yes);
    Keys(u"{F4}");
    EXPECT_EQ(Rows(PlacedQuery), (QStringList{u"300|0"_s, u"100|1"_s, u"3850104003217|1"_s}));
    EXPECT_EQ(Codes().size(), 2);
}

TEST_F(ClickTableSetupTest, AnAutomaticPlacementGoesAsFarAsItCan) {
    Run(u"UPDATE Products SET Tab = 8 WHERE ProdCode = '300'"_s);
    Run(u"UPDATE Products SET ProdCode = '4''' WHERE ProdCode = '400'"_s);
    OpenSetup();
    boxes_.Expect(Question, QMessageBox::Yes);
    boxes_.ExpectBeginning(u"3075"_s).Titled(Caption);
    Keys(u"{F4}");
    EXPECT_EQ(Rows(PlacedQuery), (QStringList{u"100|0"_s, u"200|1"_s, u"300|2"_s}));
    EXPECT_FALSE(QApplication::overrideCursor());

    Type(Screen(), u"cboTemp", u"nothing");
    boxes_.Expect(Question, QMessageBox::Yes);
    boxes_.ExpectBeginning(u"3021"_s);
    Keys(u"{F4}");
    boxes_.ExpectBeginning(u"3075"_s);
    Type(Screen(), u"cboTemp", u"'");
    EXPECT_EQ(Codes(), QStringList()) << "as before";
}

TEST_F(ClickTableSetupTest, RenamesTheTabThatIsShown) {
    OpenSetup();
    QTabBar* strip = Tabs()->tabBar();
    for (const int tab : {0, 2}) {
        QTest::mouseClick(strip, Qt::LeftButton, {}, strip->tabRect(tab).center());
        EXPECT_EQ(Box(Screen(), u"txtIzmjeni"), QString::number(tab + 1));
    }
    Type(Screen(), u"txtIzmjeni", u"  Pića & co {Tab}{Space}");
    EXPECT_EQ(Tabs()->tabToolTip(2), u"Pića & co");
    EXPECT_EQ(Rows(TabsQuery), (QStringList{u"1"_s, u"2"_s, u"Pića & co"_s}));

    boxes_.Expect(u"Tab name can't be empty."_s).Titled(Caption).WithIcon(QMessageBox::Information);
    Type(Screen(), u"txtIzmjeni", u"   {Tab}{Space}");
    EXPECT_EQ(QApplication::focusWidget()->objectName(), u"txtIzmjeni");
    boxes_.ExpectBeginning(u"3075"_s).Titled(Caption);
    Type(Screen(), u"txtIzmjeni", u"Mama's{Tab}{Space}");
    EXPECT_EQ(Rows(TabsQuery).last(), u"Pića & co");

    Keys(u"{F3}");
    EXPECT_EQ(Tabs()->currentIndex(), 0);
    EXPECT_EQ(Box(Screen(), u"txtIzmjeni"), u"1");
}

}  // namespace
