#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include "masterdata/products/frmArtikli.h"
#include "masterdata/products/frmEditProduct.h"
#include "masterdata/products/frmNewProduct.h"
#include "support/Office.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Click;
using drivers::Get;
using drivers::Keys;
using drivers::Type;

namespace {

const auto AllFields =
    u"SELECT ProdCode, ProdDescription, Qty, Unit, UnitPrice, UnitPricebezPDV, VPUnitPrice, "
    "VPUnitPricebezPDV, TaxID, TaxPercent, Pict, Tab FROM Products WHERE ProdCode = '%1'"_s;

class ProductEntryTest : public drivers::OfficeTest {
protected:
    QStringList Product(const QString& code) const { return Rows(AllFields.arg(code)); }
    static QString Focus() { return QApplication::focusWidget()->objectName(); }
    static QLabel& Picture(const QWidget& screen) { return *Get<QLabel>(screen, u"imgPicture"); }

    // Opens the list, selects a product and edits it; gives what the list shows of it then.
    QStringList Edit(const QString& code, std::function<void(QWidget&)> script, const QString& toldFirst = {}) {
        QStringList shown;
        Use<frmArtikli>([&](frmArtikli& list) {
            auto& lv1 = *Get<forms::ListView>(list, u"lv1");
            const int row = lv1.Find(code);
            lv1.Select(row);
            if (!toldFirst.isEmpty()) boxes_.ExpectBeginning(toldFirst).Titled(u"Edit product"_s);
            boxes_.ExpectForm(u"frmEditProduct"_s, [&](QWidget& screen) {
                script(screen);
                if (forms::FindForm(u"frmEditProduct")) Keys(u"{Esc}");
            });
            Keys(u"{F4}");
            shown = drivers::List(list, u"lv1").at(static_cast<size_t>(row));
        });
        return shown;
    }

    // Title and first two kinds of the dialog of pictures, which is left without a choice.
    QStringList Dialog(const QWidget& screen) {
        QStringList words;
        QTimer::singleShot(0, &screen, [&] {
            const QWidget* dialog = QApplication::activeModalWidget();
            const auto* kinds = Get<QComboBox>(*dialog, u"fileTypeCombo");
            words = QStringList{dialog->windowTitle(), kinds->itemText(0).trimmed(), kinds->itemText(1).trimmed()};
        });
        boxes_.ExpectFile({});
        Get<QPushButton>(screen, u"cmdSelect")->click();
        return words;
    }

    QString Write(const QString& name, const QByteArray& bytes) const {
        QDir(folder.path()).mkpath(u"img"_s);
        QFile file(Path(u"img/"_s + name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return file.fileName();
    }
    QString Draw(const QString& name, QSize size) const {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        const QString path = Write(name, {});
        EXPECT_TRUE(image.save(path));
        return path;
    }
    // A bitmap that claims 200 million points.
    QString DrawHuge() const {
        QFile file(Draw(u"huge.bmp"_s, {8, 8}));
        const qint32 sides[] = {20000, 10000};
        EXPECT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(18));
        file.write(reinterpret_cast<const char*>(sides), sizeof sides);
        return file.fileName();
    }
    static void ExpectEmpty(const QWidget& screen) {
        EXPECT_EQ(Focus(), u"txtProdCode");
        for (const auto name : {u"txtProdCode", u"txtDescription", u"txtUnit", u"txtUnitName", u"cboTax",
                                u"txtTaxPercent", u"txtPicturePath"})
            EXPECT_EQ(Box(screen, name), QString()) << QString::fromUtf16(name).toStdString();
        EXPECT_EQ(Box(screen, u"txtUnitPrice"), u"0.00");
        EXPECT_EQ(Box(screen, u"txtVPUnitPrice"), u"0.00");
        EXPECT_EQ(Box(screen, u"txtQuantity"), u"0");
    }
};

TEST_F(ProductEntryTest, ProductsAreAddedOneAfterAnother) {
    LogIn(u"admin"_s);
    const QString picture = Draw(u"Čoko lada.bmp"_s, {600, 300});
    Use<frmNewProduct>([&](frmNewProduct& screen) {
        EXPECT_EQ(Focus(), u"txtProdCode");
        drivers::Grab(screen, u"frmNewProduct"_s);
        Keys(u"12345678901234{Enter}Jack O'Neill{Enter}12.5{Enter}7{Enter}k{Enter}P{Enter}");
        EXPECT_EQ(Focus(), u"cmdSelect");
        EXPECT_EQ(Box(screen, u"txtUnitPrice"), u"12.50");
        EXPECT_EQ(Box(screen, u"txtQuantity"), u"7.00");
        EXPECT_EQ(Box(screen, u"txtUnitName"), u"kilogram");
        EXPECT_EQ(Box(screen, u"txtTaxPercent"), u"17.00");
        EXPECT_EQ(Box(screen, u"txtTaxName"), QString());
        boxes_.ExpectFile(picture);
        Click(Get<QWidget>(screen, u"cmdSelect"));
        EXPECT_EQ(Box(screen, u"txtPicturePath"), u"Čoko lada.bmp");
        EXPECT_EQ(Picture(screen).pixmap().width(), 2 * Picture(screen).pixmap().height());
        EXPECT_TRUE(Picture(screen).rect().contains(Picture(screen).pixmap().rect()));
        drivers::Grab(screen, u"frmNewProduct-filled"_s);

        boxes_.Expect(u"The new product is added."_s).Titled(u"New product"_s).WithIcon(QMessageBox::Information);
        Keys(u"{F5}");
        ExpectEmpty(screen);
        EXPECT_TRUE(Picture(screen).pixmap().isNull());
    });
    EXPECT_EQ(Product(u"1234567890123"_s),
              QStringList{u"1234567890123|Jack O'Neill|7|kg|12.5|0|0|0|P|17|Čoko lada.bmp|-1"_s});
}

TEST_F(ProductEntryTest, WhatIsMissingOrDoubleIsToldAndNothingIsLost) {
    LogIn(u"admin"_s);
    const QStringList cola = Product(u"100"_s);
    Use<frmNewProduct>([this](frmNewProduct& screen) {
        Keys(u"100{Enter}Cola 2{Enter}1{Enter}{Enter}p{Enter}");
        boxes_.Expect(u"Fill in all required fields."_s).Titled(u"New product"_s).WithIcon(QMessageBox::Information);
        Keys(u"{F5}");
        EXPECT_EQ(Focus(), u"txtProdCode");
        Type(screen, u"cboTax", u"N");
        QApplication::clipboard()->setText(u"dear"_s);
        Type(screen, u"txtUnitPrice", u"{Ctrl+v}");
        boxes_.Expect(u"Price must be numeric."_s).Titled(u"New product"_s);
        Keys(u"{F5}");
        EXPECT_EQ(Focus(), u"txtUnitPrice");
        Keys(u"2{Enter}");
        boxes_.Expect(u"Product with this code-barcode already exists.Change ProductID!"_s)
            .WithIcon(QMessageBox::NoIcon);
        Keys(u"{F5}");
        EXPECT_EQ(Focus(), u"txtProdCode");
        EXPECT_EQ(Box(screen, u"txtDescription"), u"Cola 2");
        // Another error is told by its number; the row that was begun does not stand in the way of the next.
        Keys(u"101");
        Type(screen, u"txtQuantity", u"{Ctrl+v}");
        boxes_.ExpectBeginning(u"3421"_s).Titled(u"New product"_s);
        Keys(u"{F5}");
        Type(screen, u"txtQuantity", u"4");
        boxes_.Expect(u"The new product is added."_s);
        Keys(u"{F5}{F12}");
        EXPECT_FALSE(screen.IsLoaded());
    });
    EXPECT_EQ(Product(u"100"_s), cola);
    EXPECT_EQ(Product(u"101"_s), QStringList{u"101|Cola 2|4|pcs|2|0|0|0|N|0||-1"_s});
}

TEST_F(ProductEntryTest, EscEmptiesTheNewProductButForItsPicture) {
    LogIn(u"admin"_s);
    const QString picture = Draw(u"a.bmp"_s, {8, 8});
    Use<frmNewProduct>([&](frmNewProduct& screen) {
        Keys(u"500{Enter}Sol{Enter}-1,2.3x{Enter}");
        EXPECT_EQ(Box(screen, u"txtUnitPrice"), u"1.2.3") << "no number, so it stays";
        boxes_.ExpectFile(picture);
        Click(Get<QWidget>(screen, u"cmdSelect"));
        Type(screen, u"cboTax", u"P");
        Keys(u"{Esc}");
        ExpectEmpty(screen);
        EXPECT_FALSE(Picture(screen).pixmap().isNull());
    });
}

TEST_F(ProductEntryTest, PicturesThatCannotBeShownAreTold) {
    LogIn(u"admin"_s);
    const QString good = Draw(u"good.bmp"_s, {1, 5000});
    const QString broken = Write(u"broken.gif"_s, "GIF89a and no more");
    const QString huge = DrawHuge();
    const auto select = [](const QWidget& screen) { Click(Get<QWidget>(screen, u"cmdSelect")); };
    Use<frmNewProduct>([&](frmNewProduct& screen) {
        boxes_.ExpectFile(Path(u"gone.bmp"_s));
        boxes_.Expect(u"File not exist!"_s).Titled(u"File Not Found"_s).WithIcon(QMessageBox::Warning);
        boxes_.ExpectFile(good);
        select(screen);
        EXPECT_FALSE(Picture(screen).pixmap().isNull());
        EXPECT_EQ(Dialog(screen), (QStringList{u"Choose image - icon"_s, u"Sve slike"_s, u"Bitmaps (*.bmp; *.dib)"_s}));
        EXPECT_EQ(Box(screen, u"txtPicturePath"), u"good.bmp");
        for (const QString& path : {broken, huge}) {
            boxes_.ExpectFile(path);
            boxes_.ExpectBeginning(u"481"_s).Titled(u"New product"_s);
            select(screen);
            EXPECT_TRUE(Picture(screen).pixmap().isNull());
        }
    });
    Run(u"UPDATE Products SET Pict = 'broken.gif' WHERE ProdCode = '300'"_s);
    Edit(
        u"300"_s,
        [](QWidget& screen) {
            Click(Get<QWidget>(screen, u"cmdDelPic"));
            Keys(u"{F5}");
        },
        u"481"_s);
    EXPECT_EQ(Product(u"300"_s), QStringList{u"300|Novine|10|pcs|2||||N|0||-1"_s});
}

TEST_F(ProductEntryTest, TheListShowsAnEditedProductWithItsOwnPercent) {
    LogIn(u"admin"_s);
    Run(u"UPDATE Tax SET Percent = 20, Name = 'PDV' WHERE TaxID = 'P'"_s);
    Run(u"UPDATE Products SET Pict = 'gone.bmp', VPUnitPrice = 1.25, UnitPricebezPDV = Null, Tab = 5 "
        "WHERE ProdCode = '100'"_s);
    const auto list = Edit(u"100"_s, [](QWidget& screen) {
        EXPECT_EQ(Focus(), u"txtDescription");
        EXPECT_EQ(Box(screen, u"txtTaxPercent"), u"17");
        EXPECT_EQ(Box(screen, u"txtTaxName"), u"PDV");
        EXPECT_EQ(Box(screen, u"txtUnitName"), u"piece");
        Keys(u"{F4}Cola 0,5 l{Enter}1.6{Enter}8,5{Enter}");
        EXPECT_EQ(Box(screen, u"txtUnitPrice"), u"1.60");
        EXPECT_EQ(Box(screen, u"txtQuantity"), u"8.5") << "is left as it stands";
        drivers::Grab(screen, u"frmEditProduct"_s);
        Keys(u"{F5}");
    });
    EXPECT_EQ(list, (QStringList{u"100"_s, u"Cola 0,5 l"_s, u"8.5"_s, u"pcs"_s, u"1.60"_s, u"17"_s, u""_s, u"1.25"_s,
                                 u""_s}));
    EXPECT_EQ(Product(u"100"_s), QStringList{u"100|Cola 0,5 l|8.5|pcs|1.6||1.25||P|17|gone.bmp|5"_s});
    // The tax chosen again has its percent of today.
    const auto again = Edit(u"100"_s, [](QWidget& screen) { Type(screen, u"cboTax", u"{Space}{Enter}{F5}"); });
    EXPECT_EQ(again[5], u"20.00");
    EXPECT_EQ(Rows(u"SELECT TaxPercent FROM Products WHERE ProdCode = '100'"_s), QStringList{u"20"_s});
}

TEST_F(ProductEntryTest, WhatHasNoValueHasNoneAfterASave) {
    LogIn(u"admin"_s);
    Run(u"UPDATE Products SET UnitPricebezPDV = Null, VPUnitPrice = Null, VPUnitPricebezPDV = Null, TaxPercent = Null,"
        " Pict = Null, Qty = Null, UnitPrice = Null WHERE ProdCode = '100'"_s);
    Edit(u"100"_s, [this](QWidget& screen) {
        boxes_.Expect(u"Fill in all required fields."_s);
        Keys(u"{F5}");
        Type(screen, u"txtQuantity", u"3");
        Type(screen, u"txtUnitPrice", u"2{F5}");
    });
    EXPECT_EQ(Rows(u"SELECT Qty, UnitPrice FROM Products WHERE UnitPricebezPDV Is Null AND VPUnitPrice Is Null "
                   "AND VPUnitPricebezPDV Is Null AND TaxPercent Is Null AND Pict Is Null"_s),
              QStringList{u"3|2"_s});
}

TEST_F(ProductEntryTest, AUnitAndATaxThatAreGoneStayWithTheProduct) {
    LogIn(u"admin"_s);
    Run(u"UPDATE Products SET Unit = 'crate', TaxID = 'OLD', TaxPercent = 10 WHERE ProdCode = '100'"_s);
    Edit(u"100"_s, [](QWidget& screen) {
        EXPECT_EQ(Box(screen, u"txtUnitName"), QString());
        Type(screen, u"cboTax", u"{Home}");
        EXPECT_EQ(Box(screen, u"txtTaxPercent"), u"17.00");
        Keys(u"{End}");
        EXPECT_EQ(Box(screen, u"txtTaxPercent"), u"10");
        Keys(u"{F5}");
    });
    EXPECT_EQ(Product(u"100"_s), QStringList{u"100|Cola|20|crate|1.5||||OLD|10||-1"_s});
}

TEST_F(ProductEntryTest, ACodeAndANameFromElsewhereKeepTheirLength) {
    LogIn(u"admin"_s);
    const QString name = QString(60, u'n') + u"\r\nn"_s;
    Run(u"UPDATE Products SET ProdCode = '38501040032171', ProdDescription = '%1' WHERE ProdCode = '200'"_s.arg(name));
    Edit(u"38501040032171"_s, [](QWidget& screen) { Type(screen, u"txtUnitPrice", u"5{F5}"); });
    EXPECT_EQ(Rows(u"SELECT ProdDescription, UnitPrice FROM Products WHERE ProdCode = '38501040032171'"_s),
              QStringList{name + u"|5"_s});
    EXPECT_EQ(Rows(u"SELECT UnitPrice FROM Products WHERE ProdCode = '3850104003217'"_s), QStringList{u"2.35"_s});
}

TEST_F(ProductEntryTest, ARefusedChangeKeepsTheScreenAndTheRow) {
    LogIn(u"admin"_s);
    const QStringList before = Product(u"100"_s);
    Edit(u"100"_s, [this](QWidget& screen) {
        Keys(u"Jack O'Neill");
        boxes_.ExpectBeginning(u"3075"_s).Titled(u"Edit product"_s).WithIcon(QMessageBox::Information);
        Keys(u"{F5}");
        EXPECT_EQ(Box(screen, u"txtDescription"), u"Jack O'Neill");
        Type(screen, u"txtDescription", u"{Del}");
        boxes_.Expect(u"Fill in all required fields."_s).Titled(u"Edit product"_s);
        Keys(u"{F5}");
        EXPECT_EQ(Focus(), u"txtProdCode");
        Keys(u"{Esc}");
        EXPECT_FALSE(forms::FindForm(u"frmEditProduct"));
    });
    EXPECT_EQ(Product(u"100"_s), before);
}

TEST_F(ProductEntryTest, AnEditedProductLeadsToPicturesAndComposition) {
    LogIn(u"admin"_s);
    Edit(u"400"_s, [this](QWidget& screen) {
        EXPECT_EQ(Dialog(screen)[0], u"Select a thumbnail - icon");
        EXPECT_EQ(Dialog(screen)[1], u"All images");
        boxes_.ExpectFile(Path(u"gone.bmp"_s));
        boxes_.Expect(u"File with such name does not exist!"_s).Titled(u"File Not Found"_s);
        boxes_.ExpectFile({});
        Click(Get<QWidget>(screen, u"cmdSelect"));
        boxes_.ExpectForm(u"frmSastav"_s, [](QWidget& recipe) {
            EXPECT_EQ(Box(recipe, u"lblSifra"), u"400");
            Keys(u"{F12}");
        });
        Click(Get<QWidget>(screen, u"cmdSastav"));
    });
}

TEST_F(ProductEntryTest, TheLastOfTwoRegistersWins) {
    LogIn(u"admin"_s);
    Edit(u"100"_s, [this](QWidget&) {
        Run(u"UPDATE Products SET ProdDescription = 'Theirs', UnitPrice = 9, Qty = 1, Tab = 3 WHERE ProdCode = '100'"_s);
        Keys(u"Ours{F5}");
    });
    EXPECT_EQ(Product(u"100"_s), QStringList{u"100|Ours|20|pcs|1.5||||P|17||3"_s});
}

TEST_F(ProductEntryTest, NumbersAreOfTheUsersLocale) {
    LogIn(u"admin"_s);
    values::SetUserLocale(QLocale(u"hr_HR"_s));
    Use<frmNewProduct>([this](frmNewProduct& screen) {
        EXPECT_EQ(Box(screen, u"txtVPUnitPrice"), u"0,00");
        Keys(u"500{Enter}Sol{Enter}12.5{Enter}1,5{Enter}k{Enter}P");
        boxes_.Expect(u"The new product is added."_s);
        Keys(u"{F5}");
    });
    Edit(u"500"_s, [](QWidget& screen) {
        EXPECT_EQ(Box(screen, u"txtUnitPrice"), u"12,50");
        EXPECT_EQ(Box(screen, u"txtQuantity"), u"1,5");
        Type(screen, u"txtUnitPrice", u"1234.5{F5}");
    });
    values::SetUserLocale(QLocale(u"en_US"_s));
    EXPECT_EQ(Product(u"500"_s), QStringList{u"500|Sol|1.5|kg|1234.5|0|0|0|P|17||-1"_s});
}

}  // namespace
