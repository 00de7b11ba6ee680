#include "forms/ListView.h"
#include "forms/Sound.h"
#include "player/Input.h"
#include "support/Till.h"

using namespace Qt::StringLiterals;
using drivers::Boxes;
using drivers::Keys;

namespace {

class ScannerTest : public drivers::TillTest {
protected:
    // The box withstands a scan, and a bare key answers it.
    static std::function<void(QMessageBox&)> Scanned(const QString& answer) {
        return [answer](QMessageBox& box) {
            const int before = forms::BeepCount();
            Keys(u"3850104003217{Enter}");
            drivers::Wait(80);
            EXPECT_TRUE(box.isVisible()) << box.text().toStdString();
            EXPECT_EQ(box.informativeText(), u"Not taken: 3850104003217"_s);
            EXPECT_EQ(forms::BeepCount(), before + 1);
            Keys(answer);
            drivers::Wait(80);
        };
    }
};

TEST_F(ScannerTest, NoBoxOfTheDayIsAnsweredByAScan) {
    Boxes boxes;
    boxes.Expect(u"Wrong password.Login not allowed."_s).Doing(Scanned(u"{Enter}"_s));
    LogIn(u"admin"_s, u"12"_s);
    EXPECT_FALSE(forms::FindForm(u"frmORVAtouch"));
    drivers::Type(Login(), u"txtPassword", u"1234{Enter}");
    drivers::Settle();

    Keys(u"100{Enter}");
    boxes.Expect(u"Product with this ID-barcode does not exist."_s).Doing(Scanned(u"{Esc}"_s));
    Keys(u"999{Enter}");
    Keys(u"3850104003217{Enter}");
    EXPECT_EQ(drivers::List(Sales(), u"lv1").size(), 2u) << "what was not taken is scanned again";
    boxes.Expect(u"Do you want cancel the invoice?"_s).Doing(Scanned(u"{Alt+n}"_s));
    Keys(u"{Esc}");
    EXPECT_EQ(drivers::List(Sales(), u"lv1").size(), 2u);
    boxes.Expect(u"Do you want to make End Report?"_s).Doing(Scanned(u"{Right}{Enter}"_s));
    boxes.Expect(u"Close the program?"_s).Doing(Scanned(u"{Esc}"_s));
    Keys(u"{F12}");
    EXPECT_EQ(Rows(u"SELECT Closed FROM Sales"_s), QStringList{u"False"_s});

    boxes.ExpectForm(u"frmTax"_s, [](QWidget& taxes) {
        Boxes inner;
        inner.ExpectBeginning(u"TaxID: N"_s).Doing(Scanned(u"{Tab}{Space}"_s));
        drivers::Get<forms::ListView>(taxes, u"lv1")->Select(1);
        Keys(u"{F6}{F12}");
    });
    mdiORVA::Window().Choose(u"mnuPorez"_s);
    EXPECT_EQ(Rows(u"SELECT TaxID FROM Tax WHERE TaxID = 'N'"_s), QStringList{u"N"_s});
}

}  // namespace
