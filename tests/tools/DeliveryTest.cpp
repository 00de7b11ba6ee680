#include "delivery/Delivery.h"

#include <QFile>
#include <QRegularExpression>

#include "tools/StoreTool.h"
#include "upkeep/ValueText.h"

using namespace Qt::StringLiterals;

namespace {

// The rows of a query, cells joined with "|", in the form that velton-store prints.
QStringList Rows(store::Database& database, const QString& query) {
    QStringList lines;
    auto rows = database.OpenRecordset(query);
    for (auto& row : rows) {
        QByteArrayList cells;
        for (int i = 0; i < row.FieldCount(); ++i) cells.append(upkeep::WriteValue(row[i].Get()));
        lines.append(QString::fromUtf8(cells.join('|')));
    }
    return lines;
}

class DeliveryTest : public testing::Test {
protected:
    void Make(bool withDemo) {
        delivery::MakeProgramFolder(folder_.path(), withDemo);
        main_ = store::Database::Open(folder_.filePath(u"ORVA.pos"_s), store::MainSchema());
        options_ = store::Database::Open(folder_.filePath(u"opt.pos"_s), store::OptionsSchema());
    }

    QTemporaryDir folder_;
    std::unique_ptr<store::Database> main_;
    std::unique_ptr<store::Database> options_;
};

bool HasValidCheckDigit(const QString& ean) {
    int sum = 0;
    for (qsizetype i = 0; i < ean.size(); ++i) sum += ean[i].digitValue() * (i % 2 == 0 ? 1 : 3);
    return sum % 10 == 0;
}

}  // namespace

TEST_F(DeliveryTest, TheDeliveredStoreHoldsWhatAShopNeedsToBegin) {
    Make(false);
    EXPECT_EQ(Rows(*main_, u"SELECT UserID, UserName, AccLevel, Password, Del FROM Users"_s),
              (QStringList{u"1|admin|3|1234|True"_s, u"2|kasir|1|1234|False"_s}));
    EXPECT_EQ(Rows(*main_, u"SELECT TaxID, Percent, Del FROM Tax"_s), (QStringList{u"P|17|True"_s, u"N|0|False"_s}));
    EXPECT_EQ(Rows(*main_, u"SELECT Abr FROM Unit"_s), (QStringList{u"pcs"_s, u"kg"_s, u"l"_s, u"m"_s}));
    EXPECT_EQ(Rows(*main_, u"SELECT * FROM TabControl"_s).size(), 10);
    EXPECT_EQ(Rows(*main_, u"SELECT * FROM TabControl WHERE TabControl = 10"_s), QStringList{u"10|10"_s});
    EXPECT_EQ(Rows(*main_, u"SELECT * FROM Company"_s).size(), 1);
    for (const QString& table :
         {u"Products"_s, u"ProductsCon"_s, u"Sales"_s, u"Invoices"_s, u"SalesDetails"_s, u"Login"_s, u"Custumer"_s})
        EXPECT_EQ(Rows(*main_, u"SELECT * FROM "_s + table).size(), 0) << table.toStdString();
}

TEST_F(DeliveryTest, SettingsAreOneRowWithoutANull) {
    Make(false);
    EXPECT_EQ(Rows(*options_,
                   u"SELECT PrinterZaRacun, TipRacuna, Emulacija, RezacPapira, RekapPoreza, TrakaRacunaFileDA, "
                   "FiskalniRacunDA, FiskalniFile, PrinterZaIzvjestaj, Kusur, SkenerPrimarno, ChangeUser, "
                   "PonudiZakljucak, NoviRacunAutomatski, StanjeKaseVidljivo, PraznihLinijaPoslijeRacuna, "
                   "Currency, Kasa, Kupac FROM Options"_s),
              QStringList{u"1|1|1|1|1|True|0|fiscal.txt|1|True|1|1|True|True|1|3|KM|1|False"_s});
    auto options = options_->OpenRecordset(u"SELECT * FROM Options"_s);
    for (int i = 0; i < options.FieldCount(); ++i)
        EXPECT_FALSE(options[i].IsNull()) << options.FieldName(i).toStdString();
}

TEST_F(DeliveryTest, TheDemoShopFitsTogether) {
    Make(true);
    EXPECT_GE(Rows(*main_, u"SELECT * FROM Products"_s).size(), 110);
    EXPECT_GE(Rows(*main_, u"SELECT * FROM Products WHERE Tab > -1"_s).size(), 85);
    EXPECT_EQ(Rows(*main_, u"SELECT UserName FROM Users"_s),
              (QStringList{u"admin"_s, u"kasir"_s, u"ana"_s, u"voditelj"_s}));
    EXPECT_EQ(Rows(*main_, u"SELECT TabDescription FROM TabControl"_s).join(u' '),
              u"Pića Topli napitci Kruh Kolači Voće Povrće Sladoled Tisak Razno 10");
    for (const QString& product : Rows(*main_, u"SELECT ProdCode, ProdDescription, UnitPrice FROM Products"_s)) {
        const QStringList cells = product.split(u'|');
        EXPECT_LE(cells[0].size(), 13);
        EXPECT_LE(cells[1].size(), 40);
        EXPECT_GT(cells[2].toDouble(), 0);
        EXPECT_TRUE(cells[0].size() != 13 || HasValidCheckDigit(cells[0])) << product.toStdString();
    }
    // Every tax's copy on a product is right, and every picture is there.
    EXPECT_EQ(Rows(*main_,
                   u"SELECT Products.ProdCode FROM Products INNER JOIN Tax ON Products.TaxID = Tax.TaxID "
                   "WHERE Products.TaxPercent <> Tax.Percent"_s),
              QStringList());
    for (const QString& picture : Rows(*main_, u"SELECT Pict FROM Products WHERE Pict IS NOT NULL GROUP BY Pict"_s))
        EXPECT_TRUE(QFile::exists(folder_.filePath(u"img/"_s + picture))) << picture.toStdString();
    const Answer check = Tool({u"check"_s, folder_.path()});
    EXPECT_EQ(check, Done("Both stores are sound.\n"));
}

TEST_F(DeliveryTest, AFolderHasPicturesHelpAndPorts) {
    Make(false);
    EXPECT_EQ(ReadFile(folder_.filePath(u"ports.ini"_s)), "[ports]\nlpt1=file:lpt1.prn\nlpt2=file:lpt2.prn\n");
    for (const QString& picture : {u"images/printer.gif"_s, u"images/pisi.gif"_s}) {
        const QByteArray bytes = ReadFile(folder_.filePath(picture));
        EXPECT_TRUE(bytes.startsWith("GIF89a") && bytes.endsWith(';')) << picture.toStdString();
    }
    static const QRegularExpression plain(u"\\A\\{\\\\rtf1[\\x20-\\x7E\\n]*\\}\\n\\z"_s);
    for (const QString& help : {u"helpVELTON.rtf"_s, u"Lozinka.rtf"_s, u"Podesavanje.rtf"_s}) {
        const QByteArray text = ReadFile(folder_.filePath(help));
        EXPECT_TRUE(plain.match(QString::fromLatin1(text)).hasMatch()) << help.toStdString();
        EXPECT_EQ(text.count('{') - text.count("\\{"), text.count('}') - text.count("\\}")) << help.toStdString();
        EXPECT_TRUE(QFile(folder_.filePath(help)).permissions() & QFile::WriteOwner);
    }
}
