#include "masterdata/products/frmArtikli.h"

#include <QComboBox>
#include <QLineEdit>

#include "core/Session.h"
#include "core/dbModule.h"
#include "support/Office.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Get;
using drivers::Keys;

namespace {

class ProductListTest : public drivers::OfficeTest {
protected:
    static QStringList Codes(const QWidget& screen) {
        QStringList codes;
        for (const QStringList& row : drivers::List(screen, u"lv1")) codes += row.first();
        return codes;
    }
    static forms::ListView& Lv1(const QWidget& screen) { return *Get<forms::ListView>(screen, u"lv1"); }
    // The chooser that F2 of the sales screen opens.
    frmArtikli& Chooser() {
        Keys(u"{F2}");
        auto* chooser = qobject_cast<frmArtikli*>(forms::FindForm(u"frmArtikli"));
        EXPECT_TRUE(chooser);
        return *chooser;
    }
};

TEST_F(ProductListTest, EachLetterAndEachChoiceSearches) {
    LogIn(u"admin"_s);
    Run(u"UPDATE Products SET ProdDescription = 'Čokolada' WHERE ProdCode = '300'"_s);
    Use<frmArtikli>([this](frmArtikli& screen) {
        const QStringList all{u"100"_s, u"200"_s, u"300"_s, u"400"_s, u"3850104003217"_s};
        EXPECT_EQ(Codes(screen), all);
        EXPECT_EQ(drivers::List(screen, u"lv1")[1],
                  (QStringList{u"200"_s, u"Jabuke crvene"_s, u"50"_s, u"kg"_s, u"3.90"_s, u"17.00"_s, {}, {}, {}}));
        Keys(u"O");
        EXPECT_EQ(Codes(screen), (QStringList{u"100"_s, u"300"_s, u"3850104003217"_s}));
        Keys(u"K");
        EXPECT_EQ(Codes(screen), (QStringList{u"300"_s}));
        drivers::Grab(screen, u"frmArtikli-search"_s);
        Keys(u"{Backspace}{Backspace}");
        EXPECT_EQ(Codes(screen), all);
        drivers::Type(screen, u"cboTemp", u"č");
        Get<QRadioButton>(screen, u"Option2")->click();
        EXPECT_EQ(Codes(screen), (QStringList{u"300"_s}));
        drivers::Type(screen, u"cboTemp", u"3");
        EXPECT_EQ(Codes(screen), QStringList());
        // In the second field the same text finds codes.
        Get<QComboBox>(screen, u"cboView")->setFocus();
        Keys(u"{Down}");
        EXPECT_EQ(Codes(screen), (QStringList{u"300"_s, u"3850104003217"_s}));
        Keys(u"{F11}");
        EXPECT_EQ(Box(screen, u"cboTemp"), QString());
        EXPECT_EQ(Codes(screen), all);
        // An apostrophe breaks the search and nothing else.
        drivers::Type(screen, u"cboTemp", u"1");
        boxes_.ExpectBeginning(u"3075"_s);
        Keys(u"'");
        EXPECT_EQ(Codes(screen), (QStringList{u"100"_s}));
        boxes_.ExpectBeginning(u"ProductID - Barcode: 100\n"_s, QMessageBox::Yes).Expect(u"Product deleted."_s);
        Keys(u"{F6}");
        EXPECT_EQ(Codes(screen), QStringList());
        // The Tab key reaches the whole block.
        Get<QWidget>(screen, u"cmdClose")->setFocus();
        Keys(u"{Tab}");
        EXPECT_TRUE(Get<QWidget>(screen, u"cboView")->hasFocus());
        Keys(u"{Esc}");
        EXPECT_FALSE(screen.IsLoaded());
    });
}

TEST_F(ProductListTest, ADeletedProductLeavesTheSearchedList) {
    LogIn(u"admin"_s);
    const auto question = u"ProductID - Barcode: 300\nProduct name: Novine\nDo you want to delete this item?"_s;
    Use<frmArtikli>([&](frmArtikli& screen) {
        Keys(u"n");
        EXPECT_EQ(Codes(screen), (QStringList{u"200"_s, u"300"_s, u"400"_s}));
        Lv1(screen).Select(1);
        boxes_.Expect(question, QMessageBox::No).Titled(u"Products"_s);
        Keys(u"{F6}");
        EXPECT_EQ(Rows(u"SELECT ProdCode FROM Products WHERE ProdCode = '300'"_s).size(), 1);
        boxes_.Expect(question, QMessageBox::Yes);
        boxes_.Expect(u"Product deleted."_s).Titled(u"Products"_s).WithIcon(QMessageBox::Information);
        Keys(u"{F6}");
        EXPECT_EQ(Codes(screen), (QStringList{u"200"_s, u"400"_s}));
        drivers::Type(screen, u"cboTemp", u"none has this");
        Keys(u"{F6}");
        boxes_.ExpectBeginning(u"91"_s);
        Keys(u"{F4}");
    });
    EXPECT_EQ(Rows(u"SELECT ProdCode FROM Products"_s).size(), 4);
}

TEST_F(ProductListTest, ANewProductComesWithF11AndAnEditedOneAtOnce) {
    LogIn(u"admin"_s);
    Use<frmArtikli>([this](frmArtikli& screen) {
        drivers::Grab(screen, u"frmArtikli"_s);
        boxes_.ExpectForm(u"frmNewProduct"_s, [this](QWidget& entry) {
            drivers::Type(entry, u"txtProdCode", u"500{Enter}Sol{Enter}1.1{Enter}7{Enter}");
            Get<QComboBox>(entry, u"txtUnit")->setCurrentIndex(0);
            Get<QComboBox>(entry, u"cboTax")->setCurrentIndex(0);
            boxes_.Expect(u"The new product is added."_s);
            Keys(u"{F5}{F12}");
        });
        Keys(u"{F5}");
        EXPECT_EQ(Codes(screen).size(), 5);
        Keys(u"{F11}");
        EXPECT_EQ(Codes(screen).last(), u"500");
        Lv1(screen).Select(5);
        Lv1(screen).setFocus();
        boxes_.ExpectForm(u"frmEditProduct"_s, [](QWidget& entry) {
            drivers::Type(entry, u"txtDescription", u"Sol morska");
            Keys(u"{F5}");
        });
        Keys(u"{Enter}");
        EXPECT_EQ(drivers::List(screen, u"lv1")[5].mid(1, 5),
                  (QStringList{u"Sol morska"_s, u"7"_s, u"pcs"_s, u"1.10"_s, u"17"_s}));
    });
}

TEST_F(ProductListTest, TheChooserGivesItsCallerACode) {
    LogIn();
    frmArtikli& chooser = Chooser();
    EXPECT_TRUE(chooser.isVisible());
    Keys(u"jab{Down}{Enter}");
    EXPECT_FALSE(forms::FindForm(u"frmArtikli"));
    EXPECT_EQ(Shown(u"txtDescription"), u"Jabuke crvene");
    // Left without a choice it leaves the caller's box alone, and the next opening from the menu is the plain list.
    drivers::Type(Sales(), u"txtProdCode", u"9");
    Chooser();
    Keys(u"{Esc}");
    EXPECT_EQ(Shown(u"txtProdCode"), QString());
    boxes_.ExpectForm(u"frmArtikli"_s, [this](QWidget& list) {
        Lv1(list).setFocus();
        boxes_.ExpectForm(u"frmEditProduct"_s, [](QWidget&) { Keys(u"{Esc}"); });
        Keys(u"{Enter}{F12}");
    });
    mdiORVA::Window().Choose(u"mnuProducts"_s);
}

TEST_F(ProductListTest, TheChooserKeepsItsCallerWhateverIsOpenedBesideIt) {
    LogIn(u"admin"_s);
    frmArtikli& chooser = Chooser();
    boxes_.ExpectForm(u"frmUsers"_s, [this](QWidget&) {
        boxes_.ExpectForm(u"frmEditUser"_s, [](QWidget&) { Keys(u"{F12}"); });
        Keys(u"{F4}{Esc}");
    });
    mdiORVA::Window().Choose(u"mnuUsers"_s);
    boxes_.ExpectForm(u"frmEditProduct"_s, [this](QWidget& entry) {
        boxes_.ExpectForm(u"frmSastav"_s, [this](QWidget&) {
            boxes_.ExpectForm(u"frmViewer"_s, [](QWidget&) { Keys(u"{Esc}"); });
            Keys(u"{F2}{F12}");
        });
        drivers::Click(Get<QWidget>(entry, u"cmdSastav"));
        Keys(u"{Esc}");
    });
    Keys(u"{F4}");
    ASSERT_EQ(CallerForm, &Sales());
    Lv1(chooser).setFocus();
    Keys(u"{Enter}");
    EXPECT_EQ(Shown(u"txtDescription"), u"Cola");
}

TEST_F(ProductListTest, TheListShowsOneMomentWhateverAnotherRegisterDoes) {
    LogIn(u"admin"_s);
    {
        store::Database::Batch batch(MainStore());
        auto products = MainStore().OpenRecordset(u"SELECT * FROM Products"_s);
        for (int i = 1000; i < 4000; ++i) {
            products.AddNew();
            products[u"ProdCode"] = QString::number(i);
            products[u"ProdDescription"] = u"Before"_s;
            products.Update();
        }
        batch.Commit();
    }
    Use<frmArtikli>([this](frmArtikli& screen) {
        const auto other = store::Database::Open(Path(u"ORVA.pos"_s), store::MainSchema());
        other->Execute(u"DELETE * FROM Products WHERE ProdCode = '2400'"_s);
        other->Execute(u"UPDATE Products SET ProdDescription = 'After' WHERE ProdCode BETWEEN '2401' AND '2500'"_s);
        const auto rows = drivers::List(screen, u"lv1");
        ASSERT_EQ(rows.size(), 3005u);
        for (size_t row = 5; row < rows.size(); ++row)
            ASSERT_EQ(rows[row].mid(0, 2), (QStringList{QString::number(995 + row), u"Before"_s}));
        Lv1(screen).Select(Lv1(screen).Find(u"2400"));
        for (const auto key : {u"{F4}", u"{F6}"}) {
            boxes_.Expect(u"3021The row was deleted after this list was read."_s).Titled(u"Products"_s);
            Keys(key);
        }
        // Read by whoever has typed, without a turn of the event loop.
        Get<QLineEdit>(screen, u"cboTemp")->setText(u"after"_s);
        EXPECT_EQ(Lv1(screen).model()->rowCount(), 100);
    });
}

}  // namespace
