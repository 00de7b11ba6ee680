#include <QApplication>
#include <QLineEdit>
#include <QTabWidget>

#include "masterdata/people/frmKupci.h"
#include "support/Office.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Get;
using drivers::Keys;
using drivers::List;

namespace {

const auto Stored = u"SELECT * FROM Custumer ORDER BY Sifra"_s;
const auto Hotel =
    u"7|Hotel Europe|Vladislava Skarića 5, Sarajevo|4200123450008|033 580 400|033 580 580|Edin Hodžić|"
    u"1610000012345678|5.00"_s;

class CustomersTest : public drivers::OfficeTest {
protected:
    CustomersTest() {
        const auto main = store::Database::Open(Path(u"ORVA.pos"_s), store::MainSchema());
        auto customers = main->OpenRecordset(Stored);
        for (const QString& customer : {Hotel, u"3|O'Hara|||||||"_s}) {
            customers.AddNew();
            const QStringList fields = customer.split(u'|');
            for (int field = 0; field < fields.size(); ++field)
                if (!fields[field].isEmpty()) customers[field] = fields[field];
            customers.Update();
        }
    }

    QStringList Shown(const frmKupci& form) const {
        QStringList rows;
        for (const QStringList& row : List(form, u"lv1")) rows << row.join(u'|');
        return rows;
    }
    static QString Focus() { return QApplication::focusWidget()->objectName(); }
};

TEST_F(CustomersTest, ListsEverybodyAndNoRowCanBeActivated) {
    LogIn(u"admin"_s);
    Use<frmKupci>([this](frmKupci& form) {
        EXPECT_EQ(Shown(form).first(),
                  u"7|Hotel Europe|Vladislava Skarića 5, Sarajevo|4200123450008|033 580 400|033 580 580|5.00");
        EXPECT_EQ(Shown(form).last(), u"3|O'Hara|||||");
        EXPECT_EQ(Get<QTabWidget>(form, u"SSTab1")->tabText(0), u"&Custumer - supplier");
        drivers::Grab(form, u"frmKupci"_s);
        drivers::DoubleClickRow(Get<forms::ListView>(form, u"lv1"), 0);
        Get<QWidget>(form, u"cmdRefresh")->setFocus();
        Keys(u"{Tab}");
        EXPECT_EQ(Focus(), u"lv1");
        Keys(u"{Enter}");
    });
}

TEST_F(CustomersTest, SearchesTheIdentificationWhicheverEntryIsShown) {
    LogIn(u"admin"_s);
    Use<frmKupci>([this](frmKupci& form) {
        EXPECT_EQ(Box(form, u"cboView"), u"Name");
        Keys(u"hotel");
        EXPECT_EQ(Shown(form).size(), 0);
        Keys(u"{Home}{Shift+End}12345");
        EXPECT_EQ(Shown(form).size(), 1);
        drivers::Click(Get<QWidget>(form, u"Option2"));
        EXPECT_EQ(Shown(form).size(), 0);
        drivers::Type(form, u"cboTemp", u"4200");
        EXPECT_EQ(Shown(form).size(), 1);
        Get<QWidget>(form, u"cboView")->setFocus();
        Keys(u"{Down}");
        EXPECT_EQ(Box(form, u"cboView"), u"Ident");
        EXPECT_EQ(Shown(form).size(), 1);
        Keys(u"{F11}");
        EXPECT_EQ(Shown(form).size(), 2);
        EXPECT_EQ(Box(form, u"cboTemp"), u"");
    });
}

TEST_F(CustomersTest, ANewOneIsTypedFieldByFieldAndListedAfterF11) {
    values::SetUserLocale(QLocale(u"hr_HR"_s));
    LogIn(u"admin"_s);
    Use<frmKupci>([this](frmKupci& form) {
        boxes_.ExpectForm(u"frmNewKupac"_s, [](QWidget& entry) {
            EXPECT_EQ(entry.windowTitle(), u"New custumer - supplier");
            Keys(u"12345678901234{Enter}Mljekara d.o.o.{Enter}Tuzla{Enter}abc{Enter}035{Enter}036{Enter}");
            Keys(u"O'Connor{Enter}555{Enter}-1x2.5{Enter}");
            drivers::Grab(entry, u"frmNewKupac"_s);
            Keys(u"{F5}");
        });
        Keys(u"{F5}");
        EXPECT_EQ(Shown(form).size(), 2);
        Keys(u"{F11}");
        EXPECT_EQ(Shown(form).last(), u"1234567890123|Mljekara d.o.o.|Tuzla|abc|035|036|12,50");
    });
    EXPECT_EQ(Rows(Stored).last(), u"1234567890123|Mljekara d.o.o.|Tuzla|abc|035|036|O'Connor|555|12,50");
}

TEST_F(CustomersTest, WhatCannotBeStoredIsToldAndKeepsTheEntry) {
    LogIn(u"admin"_s);
    Use<frmKupci>([this](frmKupci&) {
        boxes_.ExpectForm(u"frmNewKupac"_s, [this](QWidget& entry) {
            boxes_.Expect(u"Fill in all required fields."_s).Titled(entry.windowTitle());
            Keys(u"7{Enter}{F5}");
            EXPECT_EQ(Focus(), u"txtProdCode");
            boxes_.Expect(u"Change password!"_s).WithIcon(QMessageBox::NoIcon);
            Keys(u"{Enter}Twin{F5}");
            EXPECT_EQ(Focus(), u"txtProdCode");
            boxes_.ExpectBeginning(u"3421"_s).Titled(entry.windowTitle()).WithIcon(QMessageBox::Information);
            Keys(u"{Home}{Shift+End}7b{F5}");
            Keys(u"{Home}{Shift+End}8{F5}");
        });
        Keys(u"{F5}");
    });
    EXPECT_EQ(Rows(Stored), (QStringList{u"3|O'Hara|||||||"_s, Hotel, u"8|Twin|||||||"_s}));
}

TEST_F(CustomersTest, AnEditRefreshesItsRowButForTheRate) {
    LogIn(u"admin"_s);
    Use<frmKupci>([this](frmKupci& form) {
        boxes_.ExpectForm(u"frmEditKupac"_s, [this](QWidget& entry) {
            EXPECT_EQ(entry.windowTitle(), u"Edit custumer - supplier");
            EXPECT_EQ(Box(entry, u"lblIdent"), u"Identification:");
            drivers::Grab(entry, u"frmEditKupac"_s);
            Keys(u"Hotel{Enter}Ilidža{Enter}1{Enter}2{Enter}3{Enter}4{Enter}5{Enter}7{Enter}{F5}");
        });
        Keys(u"{F4}");
        EXPECT_EQ(Shown(form).first(), u"7|Hotel|Ilidža|1|2|3|5.00");
        Keys(u"{F11}");
        EXPECT_EQ(Shown(form).first(), u"7|Hotel|Ilidža|1|2|3|7.00");
        boxes_.ExpectForm(u"frmEditKupac"_s, [](QWidget&) { Keys(u"not kept{Esc}"); });
        Keys(u"{F4}");
    });
    EXPECT_EQ(Rows(Stored).last(), u"7|Hotel|Ilidža|1|2|3|4|5|7.00");
}

TEST_F(CustomersTest, LongTextsFromElsewhereAreNotCut) {
    LogIn(u"admin"_s);
    Run(u"UPDATE Custumer SET Sifra = 70000000000001, Naziv = '%1', JMBG = '42001234500081' WHERE Sifra = 7"_s.arg(
        QString(60, u'n')));
    const QStringList before = Rows(Stored);
    Use<frmKupci>([this](frmKupci&) {
        boxes_.ExpectForm(u"frmEditKupac"_s, [](QWidget&) { Keys(u"{F5}"); });
        Keys(u"{F4}");
    });
    EXPECT_EQ(Rows(Stored), before);
}

TEST_F(CustomersTest, DeletingAsksAndKeepsTheSearch) {
    LogIn(u"admin"_s);
    Use<frmKupci>([this](frmKupci& form) {
        const auto question = u"Custumer: Hotel Europe\nDo you want to delete the customer?"_s;
        Keys(u"42");
        boxes_.Expect(question, QMessageBox::No).WithIcon(QMessageBox::Question).Titled(form.Caption());
        Keys(u"{F6}");
        EXPECT_EQ(Rows(Stored).size(), 2);
        boxes_.Expect(question, QMessageBox::Yes).Expect(u"Custumer deleted."_s);
        Keys(u"{F6}");
        EXPECT_EQ(Rows(Stored), QStringList{u"3|O'Hara|||||||"_s});
        EXPECT_EQ(Shown(form).size(), 0) << "the search still holds";
        Keys(u"{F4}{F6}");
    });
}

}  // namespace
