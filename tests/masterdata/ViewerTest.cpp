#include "masterdata/products/frmViewer.h"

#include <QApplication>

#include "core/Session.h"
#include "support/Office.h"

using namespace Qt::StringLiterals;
using drivers::Get;
using drivers::Keys;

namespace {

class ViewerTest : public drivers::OfficeTest {
protected:
    ViewerTest() { code_->setObjectName(u"txtProdCode"_s); }

    // Opens the window for a caller of its own, as the composition does.
    void Search(const values::Value& listsAtOnce, std::function<void(frmViewer&)> script) {
        Setting(u"PrikaziOdmah"_s, listsAtOnce);
        LogIn(u"admin"_s);
        CallerForm = &caller_;
        Use<frmViewer>(std::move(script));
        Crash();
    }
    static QStringList Codes(const frmViewer& form) {
        QStringList codes;
        for (const QStringList& row : drivers::List(form, u"lv1")) codes << row[0];
        return codes;
    }

    forms::Form caller_;
    QLineEdit* code_ = new QLineEdit(&caller_);
};

TEST_F(ViewerTest, OpensEmptyOrWithAllProductsAsTheSettingSays) {
    Run(u"UPDATE Products SET UnitPrice = Null WHERE ProdCode = '400'"_s);
    Search(true, [](frmViewer& form) { EXPECT_EQ(Codes(form).size(), 5); });
    Search({}, [](frmViewer& form) { EXPECT_TRUE(Codes(form).empty()); });
    Search(false, [](frmViewer& form) {
        EXPECT_TRUE(Codes(form).empty());
        Get<QWidget>(form, u"lv1")->setFocus();
        Keys(u"{Enter}");
        EXPECT_EQ(QApplication::focusWidget(), Get<QWidget>(form, u"cmdHelp")) << "nothing to choose: it moves on";
        drivers::Type(form, u"cboTemp", u"me");
        EXPECT_EQ(drivers::List(form, u"lv1"),
                  (std::vector<QStringList>{{u"400"_s, u"Meni dana"_s, u""_s, u"17.00"_s, u"0"_s, u"pcs"_s}}));
        Get<QComboBox>(form, u"cboView")->setCurrentIndex(1);
        EXPECT_TRUE(Codes(form).empty()) << "no code has these letters";
        drivers::Type(form, u"cboTemp", u"3");
        EXPECT_EQ(Codes(form), (QStringList{u"300"_s, u"3850104003217"_s}));
        Keys(u"{F11}");
        EXPECT_EQ(Codes(form).size(), 5);
        drivers::Grab(form, u"frmViewer"_s);
    });
}

TEST_F(ViewerTest, GivesTheChosenCodeToItsCallerAndClosesWithoutOne) {
    for (const QStringView key : {u"{Esc}", u"{F12}"})
        Search(true, [key](frmViewer& form) {
            Keys(key);
            EXPECT_FALSE(form.IsLoaded());
        });
    EXPECT_EQ(code_->text(), u"");
    Search(true, [](frmViewer& form) {
        Get<QWidget>(form, u"lv1")->setFocus();
        Keys(u"{Down}{Enter}");
        EXPECT_FALSE(form.IsLoaded());
    });
    EXPECT_EQ(code_->text(), u"200");
    Search(true, [](frmViewer& form) { drivers::DoubleClickRow(Get<forms::ListView>(form, u"lv1"), 2); });
    EXPECT_EQ(code_->text(), u"300");
}

}  // namespace
