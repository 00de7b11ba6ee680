#include <QTabWidget>

#include "masterdata/clicktable/ClickTable.h"
#include "support/Till.h"

using namespace Qt::StringLiterals;
using drivers::Boxes;
using drivers::Keys;

namespace {

class ClickTableTest : public drivers::TillTest {
protected:
    TouchButton* Button(int index) const { return drivers::Get<TouchButton>(Sales(), u"Command2_%1"_s.arg(index)); }
};

TEST_F(ClickTableTest, OneTouchPutsALineOnTheInvoice) {
    Run(u"UPDATE Products SET Tab = 0 WHERE ProdCode = '300'"_s);
    Run(u"UPDATE Products SET Tab = 319 WHERE ProdCode = '100'"_s);
    LogIn();
    EXPECT_EQ(Button(0)->text(), u"Novine = 2");
    EXPECT_EQ(Button(319)->text(), u"Cola = 1.5");
    EXPECT_EQ(Button(319)->Tag(), u"100");
    drivers::Click(Button(0));
    drivers::Click(Button(0));
    drivers::Click(Button(5));  // free
    const auto lines = drivers::List(Sales(), u"lv1");
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0][3], u"2");
    EXPECT_EQ(Shown(u"txtTotalAmount"), u"4.00");
}

TEST_F(ClickTableTest, SellsAtTheStoresPriceAndTellsADeletedProduct) {
    Run(u"UPDATE Products SET Tab = 0 WHERE ProdCode = '300'"_s);
    LogIn();
    Run(u"UPDATE Products SET UnitPrice = 3 WHERE ProdCode = '300'"_s);
    drivers::Click(Button(0));
    EXPECT_EQ(Button(0)->text(), u"Novine = 2");
    EXPECT_EQ(Shown(u"txtTotalAmount"), u"3.00");
    Keys(u"300");  // the code that the button is about to write
    Run(u"DELETE * FROM Products WHERE ProdCode = '300'"_s);
    {
        Boxes boxes;
        boxes.Expect(u"Product has meanwhile been deleted or does not exist."_s).WithIcon(QMessageBox::NoIcon);
        drivers::Click(Button(0));
    }
    EXPECT_EQ(Shown(u"txtProdCode"), u"");
    Keys(u"{F9}");
    EXPECT_EQ(Button(0)->text(), u"");
    EXPECT_EQ(Button(0)->Tag(), u"");
}

TEST_F(ClickTableTest, TabsCarryTheirCaptionsAndTheLastProductOfAPlaceWins) {
    Run(u"UPDATE TabControl SET TabDescription = 'Pića & co' WHERE TabControl = 1"_s);
    Run(u"UPDATE TabControl SET TabDescription = Null WHERE TabControl = 2"_s);
    Run(u"UPDATE Products SET Tab = 7 WHERE ProdCode = '100'"_s);
    Run(u"UPDATE Products SET Tab = 7 WHERE ProdCode = '300'"_s);
    LogIn();
    const auto* tabs = drivers::Get<QTabWidget>(Sales(), u"SSTab1");
    ASSERT_EQ(tabs->count(), 10);
    EXPECT_EQ(tabs->tabToolTip(0), u"Pića & co");
    EXPECT_EQ(tabs->tabText(1), u"");
    EXPECT_EQ(tabs->currentIndex(), 0);
    EXPECT_EQ(Button(7)->Tag(), u"300");
}

}  // namespace
