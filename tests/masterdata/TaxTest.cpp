#include "masterdata/shop/frmTax.h"

#include <SQLiteCpp/Database.h>

#include <QApplication>

#include "support/Office.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Keys;
using drivers::List;

namespace {

const auto Protected = u"Tax protected from deletion, but you can modify the data."_s;
const auto DeleteN = u"TaxID: N\nTax name: Without tax\nAre you sure you want to delete this type of tax?"_s;
const auto NotFilled = u"Fill in all required fields."_s;

class TaxTest : public drivers::OfficeTest {
protected:
    TaxTest() { LogIn(u"admin"_s); }

    QStringList Taxes() const { return Rows(u"SELECT TaxID, Name, Percent FROM Tax"_s); }
    static QString Focus() { return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : u""_s; }
    // Opens one of the twins with a key of the list.
    void Enter(QStringView key, const QString& twin, std::function<void(QWidget&)> script) {
        boxes_.ExpectForm(twin, std::move(script));
        Keys(key);
    }
};

TEST_F(TaxTest, ListsTheRatesAndDeletesOnlyWhatIsFree) {
    Use<frmTax>([this](frmTax& screen) {
        EXPECT_EQ(screen.Caption(), u"Taxes");
        EXPECT_EQ(List(screen, u"lv1"), (std::vector<QStringList>{{u"P"_s, u"17.00"_s, u"PDV 17 %"_s},
                                                                  {u"N"_s, u"0.00"_s, u"Without tax"_s}}));
        drivers::Grab(screen, u"frmTax"_s);
        boxes_.Expect(Protected).WithIcon(QMessageBox::Information).Titled(u"Taxes"_s);
        Keys(u"{F6}");
        boxes_.Expect(DeleteN, QMessageBox::No).WithIcon(QMessageBox::Question);
        Keys(u"{Down}{Del}");
        EXPECT_EQ(Taxes().size(), 2);
        boxes_.Expect(DeleteN, QMessageBox::Yes).Expect(u"Tax deleted."_s);
        Keys(u"{Del}");
        EXPECT_EQ(List(screen, u"lv1").size(), 1u);
        EXPECT_EQ(Taxes(), QStringList{u"P|PDV 17 %|17"_s});
        // What is not known to be free is protected, and a row that another register took away is an error.
        Run(u"UPDATE Tax SET Del = Null"_s);
        boxes_.Expect(Protected);
        Keys(u"{F6}");
        Run(u"DELETE * FROM Tax"_s);
        boxes_.ExpectBeginning(u"3021"_s).WithIcon(QMessageBox::Information).Titled(u"Taxes"_s);
        Keys(u"{F6}{Esc}");
        EXPECT_FALSE(screen.IsLoaded());
    });
    Use<frmTax>([](frmTax& screen) {
        Keys(u"{F4}{F6}{Enter}{Del}{F12}");
        EXPECT_FALSE(screen.IsLoaded());
    });
}

TEST_F(TaxTest, ARateThatOtherRowsReferToIsProtectedToo) {
    SQLite::Database(Path(u"ORVA.pos"_s).toStdString(), SQLite::OPEN_READWRITE)
        .exec("CREATE TRIGGER KeepTax BEFORE DELETE ON Tax BEGIN SELECT RAISE(ABORT, 'in use'); END");
    Use<frmTax>([this](frmTax& screen) {
        Keys(u"{Down}");
        boxes_.Expect(DeleteN, QMessageBox::Yes).Expect(Protected).WithIcon(QMessageBox::NoIcon);
        Keys(u"{F6}");
        EXPECT_EQ(List(screen, u"lv1").size(), 2u);
    });
}

TEST_F(TaxTest, ANewRateIsTypedCheckedAndListed) {
    Use<frmTax>([this](frmTax& screen) {
        Enter(u"{F5}", u"frmNewTax"_s, [this](QWidget& form) {
            EXPECT_EQ(form.windowTitle(), u"New Tax");
            boxes_.Expect(NotFilled).Titled(u"New Tax"_s);
            Keys(u"r{Enter}reduced rATE{Enter}{F5}");
            drivers::Grab(form, u"frmNewTax"_s);
            boxes_.Expect(u"Tax rate must be numeric."_s);
            Keys(u"1x-7.5.{Enter}{F5}");
            EXPECT_EQ(Focus(), u"txtPercent");
            EXPECT_EQ(Box(form, u"txtPercent"), u"17.5.");
            boxes_.Expect(u"A new type of tax is added."_s);
            Keys(u"{Backspace}117,5{F5}");
        });
        EXPECT_EQ(List(screen, u"lv1").back(), (QStringList{u"r"_s, u"117.50"_s, u"Reduced RATE"_s}));

        // One code for two rates, and after it one name: the texts differ from those of the other twin.
        Enter(u"{F5}", u"frmNewTax"_s, [this](QWidget& form) {
            const auto taken = u"Tax with same code or a name already exists.Change TaxID or type!!"_s;
            boxes_.Expect(taken).WithIcon(QMessageBox::NoIcon);
            Keys(u"R{Enter}other{Enter}0{F5}");
            EXPECT_EQ(Focus(), u"txtTaxID");
            drivers::Type(form, u"txtName", u"WITHOUT tax{Tab}");
            boxes_.Expect(taken);
            drivers::Type(form, u"txtTaxID", u"Z{F5}");
            drivers::Type(form, u"txtName", u"Zero");
            boxes_.Expect(u"A new type of tax is added."_s);
            Keys(u"{F5}");
        });
        Enter(u"{F5}", u"frmNewTax"_s, [](QWidget&) { Keys(u"Q{Enter}quit{Enter}1{F12}"); });
    });
    EXPECT_EQ(Taxes(),
              (QStringList{u"P|PDV 17 %|17"_s, u"N|Without tax|0"_s, u"r|Reduced RATE|117.5"_s, u"Z|Zero|0"_s}));
}

TEST_F(TaxTest, AProtectedRateIsEditedAndProductsKeepTheirCopy) {
    Use<frmTax>([this](frmTax& screen) {
        Enter(u"{Enter}", u"frmEditTax"_s, [this](QWidget& form) {
            EXPECT_EQ(form.windowTitle(), u"Edit Tax");
            EXPECT_EQ(Box(form, u"txtTaxID"), u"P");
            EXPECT_EQ(Box(form, u"txtPercent"), u"17.00");
            EXPECT_EQ(Focus(), u"txtName");
            drivers::Grab(form, u"frmEditTax"_s);
            boxes_.Expect(u"Tax with same code or a name already exists.Change TaxID or type!"_s)
                .WithIcon(QMessageBox::NoIcon);
            Keys(u"without tax{F5}");
            Keys(u"{Home}{Shift+End}pdv{Enter}18.5{F5}");
        });
        EXPECT_EQ(List(screen, u"lv1")[0], (QStringList{u"P"_s, u"18.50"_s, u"Pdv"_s}));
        // Esc empties the code as well, which then cannot be typed again.
        Enter(u"{F4}", u"frmEditTax"_s, [this](QWidget& form) {
            boxes_.Expect(NotFilled);
            Keys(u"{Esc}New{Enter}1{F5}");
            EXPECT_EQ(Box(form, u"txtTaxID"), u"");
            Keys(u"{F12}");
        });
    });
    EXPECT_EQ(Taxes()[0], u"P|Pdv|18.5");
    EXPECT_EQ(Rows(u"SELECT TaxPercent FROM Products WHERE ProdCode = '100'"_s), QStringList{u"17"_s});
}

TEST_F(TaxTest, APercentIsWrittenAndReadUnderTheUsersLocale) {
    values::SetUserLocale(QLocale(u"hr_HR"_s));
    Use<frmTax>([this](frmTax& screen) {
        Enter(u"{Down}{F4}", u"frmEditTax"_s, [](QWidget& form) {
            EXPECT_EQ(Box(form, u"txtPercent"), u"0,00");
            Keys(u"{Enter}5.25{F5}");
        });
        EXPECT_EQ(List(screen, u"lv1")[1][1], u"5,25");
    });
    EXPECT_EQ(Taxes()[1], u"N|Without Tax|5,25");
}

}  // namespace
