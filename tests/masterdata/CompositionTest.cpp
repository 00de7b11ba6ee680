#include "masterdata/products/frmSastav.h"

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>

#include "core/dbModule.h"
#include "support/Office.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Get;
using drivers::Keys;
using drivers::Type;

namespace {

class CompositionTest : public drivers::OfficeTest {
protected:
    CompositionTest() {
        editor_.setObjectName(u"frmEditProduct"_s);
        code_->setObjectName(u"txtProdCode"_s);
    }
    // Opens the composition of a product, beside a screen that shows the product.
    void Compose(const QString& code, std::function<void(frmSastav&)> script) {
        LogIn(u"admin"_s);
        code_->setText(code);
        editor_.Load();
        Use<frmSastav>(std::move(script));
        editor_.Unload();
    }
    static forms::ListView* Parts(const frmSastav& form) { return Get<forms::ListView>(form, u"lv1"); }
    static QStringList Codes(const frmSastav& form) {
        QStringList codes;
        for (const QStringList& row : drivers::List(form, u"lv1")) codes << row[0];
        return codes;
    }
    static QString Focus() {
        return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
    }
    QStringList Recipe() const { return Rows(u"SELECT CONsif, ConSIFQty FROM ProductsCon WHERE SIF = '400'"_s); }

    const QStringList stored_ = {u"100|2"_s, u"200|0.5"_s};
    forms::Form editor_;
    QLineEdit* code_ = new QLineEdit(&editor_);
};

TEST_F(CompositionTest, ShowsTheRecipeAndSavesItAsListed) {
    Compose(u"400"_s, [this](frmSastav& form) {
        EXPECT_EQ(Box(form, u"lblSifra") + Box(form, u"lblDescription") + Box(form, u"lblJM") + Box(form, u"lblCijena"),
                  u"400Meni danapcs9.99");
        EXPECT_EQ(drivers::List(form, u"lv1"),
                  (std::vector<QStringList>{{u"100"_s, u"Cola"_s, u"2.000"_s, u"pcs"_s, u"1.50"_s},
                                            {u"200"_s, u"Jabuke crvene"_s, u"0.500"_s, u"kg"_s, u"3.90"_s}}));
        Keys(u"300{Enter}2{Enter}");
        EXPECT_EQ(drivers::List(form, u"lv1").at(2),
                  (QStringList{u"300"_s, u"Novine"_s, u"2.000"_s, u"pcs"_s, u"4.00"_s}));
        EXPECT_EQ(Box(form, u"txtDescription") + Box(form, u"txtQuantity") + Box(form, u"txtPrice"), u"");
        Keys(u"400{Enter}0.1234");  // a product may even contain itself
        drivers::Grab(form, u"frmSastav"_s);
        Keys(u"{Enter}");
        EXPECT_EQ(Recipe(), stored_) << "the list is a working copy";
        for (int save = 1; save <= 2; ++save) {
            Keys(u"{F4}");
            EXPECT_EQ(Recipe(), stored_ + QStringList({u"300|2"_s, u"400|0.123"_s}));
        }
    });
}

TEST_F(CompositionTest, ComputesAmountAndTaxWhileTheQuantityIsTyped) {
    struct Case {
        const char16_t* code;
        const char16_t* typed;
        const char16_t* quantity;
        const char16_t* amount;
        const char16_t* tax;
    };
    Run(u"UPDATE Products SET UnitPrice = Null WHERE ProdCode = '3850104003217'"_s);
    Compose(u"400"_s, [](frmSastav& form) {
        for (const auto& [code, typed, quantity, amount, tax] :
             {Case{u"100", u"", u"1", u"1.50", u"0.22"}, Case{u"200", u"1.254", u"1.254", u"4.89", u"0.71"},
              Case{u"200", u"12x-,5", u"12.5", u"48.75", u"7.08"}, Case{u"300", u"3", u"3", u"6.00", u"0.00"},
              Case{u"3850104003217", u"", u"1", u"", u""}}) {
            Type(form, u"txtProdCode", QString::fromUtf16(code) + u"{Enter}"_s);
            Keys(typed);
            EXPECT_EQ(Box(form, u"txtQuantity"), quantity);
            EXPECT_EQ(Box(form, u"txtPrice"), amount);
            EXPECT_EQ(Box(form, u"txtTaxAmount"), tax);
        }
        const auto* add = Get<QWidget>(form, u"cmdAddItem");
        EXPECT_TRUE(add->isEnabled());
        QApplication::clipboard()->setText(u"two"_s);
        Keys(u"{Ctrl+v}");
        EXPECT_EQ(Box(form, u"txtQuantity"), u"");
        EXPECT_EQ(Focus(), u"txtQuantity");
        EXPECT_FALSE(add->isEnabled());
    });
}

TEST_F(CompositionTest, AComponentExistsAndStandsOnceOnly) {
    Run(u"UPDATE Products SET ProdCode = 'Čaj1' WHERE ProdCode = '300'"_s);
    Compose(u"400"_s, [this](frmSastav& form) {
        boxes_.Expect(u"Product with this code-barcode does not exist."_s)
            .WithIcon(QMessageBox::Information)
            .Titled(u"VELTON POS"_s);
        Keys(u"77{Enter}");
        EXPECT_EQ(Focus(), u"txtProdCode");
        Keys(u"100'");
        EXPECT_EQ(Box(form, u"txtProdCode"), u"100'") << "the code was selected";
        EXPECT_EQ(Box(form, u"txtDescription"), u"Cola") << "a query that fails is passed over";
        Keys(u"{Backspace}{Enter}5{Enter}");
        EXPECT_EQ(Box(form, u"txtProdCode") + Box(form, u"txtQuantity"), u"1005") << "it stays in the boxes";
        EXPECT_EQ(Parts(form)->Text(0, 2), u"2.000");
        Type(form, u"txtProdCode", u"Čaj1{Enter}{Enter}");
        Type(form, u"txtProdCode", u"čAJ1{Enter}{Enter}");
        EXPECT_EQ(Codes(form), (QStringList{u"100"_s, u"200"_s, u"Čaj1"_s}));
    });
}

TEST_F(CompositionTest, TheListTakesBackAndRemovesRowsByKeyAndMouse) {
    Compose(u"400"_s, [](frmSastav& form) {
        Keys(u"300{Enter}{Enter}3850104003217{Enter}{Enter}");
        drivers::ClickRow(Parts(form), 1, Qt::RightButton);
        EXPECT_EQ(Box(form, u"txtProdCode") + u' ' + Box(form, u"txtQuantity"), u"200 0.500");
        EXPECT_EQ(Focus(), u"txtQuantity");
        Keys(u"3{Enter}");
        EXPECT_EQ(Parts(form)->Text(3, 2), u"3.000");
        drivers::ClickRow(Parts(form), 1);
        EXPECT_EQ(Codes(form), (QStringList{u"100"_s, u"3850104003217"_s, u"200"_s}));
        Parts(form)->setFocus();
        Keys(u"{Home}{Del}{Ins}");
        EXPECT_EQ(Box(form, u"txtProdCode"), u"3850104003217");
        EXPECT_EQ(Codes(form), QStringList{u"200"_s});
        drivers::ClickRow(Parts(form), 0);
        drivers::ClickRow(Parts(form), -1, Qt::RightButton);
        Keys(u"{Del}{Ins}{Enter}");
        EXPECT_EQ(Focus(), u"cmdSave");
    });
    EXPECT_EQ(Recipe(), stored_) << "closed without a save";
}

TEST_F(CompositionTest, AnEmptyListIsNotSaved) {
    Compose(u"400"_s, [this](frmSastav& form) {
        boxes_.Expect(u"You did not enter a single item in the composition."_s)
            .WithIcon(QMessageBox::Information)
            .Titled(u"VELTON POS"_s);
        Keys(u"{F5}{F4}{Esc}");
        EXPECT_TRUE(form.IsLoaded());
        Keys(u"{F12}");
        EXPECT_FALSE(form.IsLoaded());
    });
    EXPECT_EQ(Recipe(), stored_);
}

TEST_F(CompositionTest, ARecipeIsReplacedAsAWholeOrNotAtAll) {
    Compose(u"400"_s, [this](frmSastav&) {
        Run(u"DELETE * FROM ProductsCon WHERE CONsif = '100'"_s);
        auto other = MainStore().OpenRecordset(u"SELECT * FROM ProductsCon"_s);
        other.AddNew();
        other[u"SIF"] = u"400"_s;
        other[u"CONsif"] = u"300"_s;
        other.Update();
        Keys(u"{F4}");
        EXPECT_EQ(Recipe(), stored_) << "the last save wins over another register's";
        QApplication::clipboard()->setText(u"9000000000000000"_s);
        for (int error = 1; error <= 2; ++error) boxes_.ExpectBeginning(u"6"_s);
        Keys(u"300{Enter}{Ctrl+v}{Enter}{F4}");
        EXPECT_EQ(Recipe(), stored_) << "its quantity cannot be stored";
    });
}

TEST_F(CompositionTest, AComponentWithoutAProductStopsTheOpening) {
    Run(u"DELETE * FROM Products WHERE ProdCode = '200'"_s);
    LogIn(u"admin"_s);
    code_->setText(u"400"_s);
    editor_.Load();
    boxes_.ExpectBeginning(u"3021"_s);
    forms::Run([] { frmSastav().ShowModal(); }, {});
    EXPECT_FALSE(forms::FindForm(u"frmSastav"));
}

TEST_F(CompositionTest, TakesAComponentFromTheSearchAndSavesTwoHundredAtOnce) {
    const auto longCode = u"20000000000000"_s;  // longer than one can be typed
    Run(u"UPDATE Products SET ProdCode = '%1' WHERE ProdCode = '200'"_s.arg(longCode));
    Compose(u"300"_s, [&](frmSastav& form) {
        boxes_.ExpectForm(u"frmViewer"_s, [&](QWidget& viewer) {
            EXPECT_EQ(Box(form, u"txtProdCode"), u"");
            Get<QWidget>(viewer, u"lv1")->setFocus();
            Keys(u"{Down}{Enter}");
        });
        Keys(u"77{F2}{Enter}2{Enter}");
        EXPECT_EQ(Codes(form), QStringList{longCode});
        drivers::ClickRow(Parts(form), 0, Qt::RightButton);
        Keys(u"{Enter}");
        EXPECT_EQ(Codes(form), QStringList{longCode});
        for (int number = 1; number < 200; ++number)
            Parts(form)->Add({u"part %1"_s.arg(number), u"Part"_s, u"1.000"_s, u"pcs"_s, u"1.00"_s});
        QElapsedTimer clock;
        clock.start();
        Keys(u"{F4}{F4}");
        RecordProperty("milliseconds", static_cast<int>(clock.elapsed()));
        EXPECT_LT(clock.elapsed(), 1000);
    });
    EXPECT_EQ(Rows(u"SELECT CONsif FROM ProductsCon WHERE SIF = '300'"_s).size(), 200);
}

}  // namespace
