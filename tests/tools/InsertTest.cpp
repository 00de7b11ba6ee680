#include <gmock/gmock.h>

#include "tools/StoreTool.h"

using namespace Qt::StringLiterals;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

using InsertTest = ShopTest;

}  // namespace

TEST_F(InsertTest, AddsARowWithTheDefaultsOfWhatIsNotGiven) {
    EXPECT_EQ(Insert(u"products"_s,
                     {u"prodcode=3850001"_s, u"ProdDescription=Čaj = topli"_s, u"UnitPrice=1.15"_s, u"Pict="_s}),
              Done());
    EXPECT_EQ(
        Sql(u"SELECT ID, ProdCode, ProdDescription, UnitPrice, Qty, Pict, Tab FROM Products"_s),
        Done("ID\tProdCode\tProdDescription\tUnitPrice\tQty\tPict\tTab\n1\t3850001\tČaj = topli\t1.15\t\t\t-1\n"));
    EXPECT_EQ(Insert(u"Sales"_s, {u"SalesID=007"_s}), Done());
    EXPECT_EQ(Sql(u"SELECT SalesID, Kas, Closed, Grupni FROM Sales"_s),
              Done("SalesID\tKas\tClosed\tGrupni\n007\t0\tFalse\t\n"));
    EXPECT_EQ(Tool({u"insert"_s, folder_, u"Options"_s, u"Kasa=2"_s, u"Kupac=true"_s, u"--options"_s}), Done());
    EXPECT_EQ(Tool({u"sql"_s, folder_, u"SELECT Kupac FROM Options WHERE Kasa = 2"_s, u"--options"_s}),
              Done("Kupac\nTrue\n"));
}

TEST_F(InsertTest, TakesAnyText) {
    // In square brackets, with separators, a zero character, right to left, beyond the basic plane.
    const QList<std::pair<QString, QByteArray>> texts{
        {u"[a,b]"_s, "[a,b]"}, {u"a;b,c"_s, "a;b,c"},     {u"x\\0y"_s, "x\\0y"}, {u"שלום"_s, "שלום"}, {u"😀"_s, "😀"},
        {u"--x"_s, "--x"},     {u"o'clock"_s, "o'clock"}, {u" "_s, " "},         {u"a\tb"_s, "a\\tb"}};
    int number = 0;
    for (const auto& [text, printed] : texts) {
        const QString key = QString::number(++number);
        EXPECT_EQ(Insert(u"Unit"_s, {u"Abr="_s + key, u"UnitName="_s + text}), Done());
        EXPECT_EQ(Sql(u"SELECT UnitName FROM Unit WHERE Abr = '"_s + key + u"'"_s),
                  Done("UnitName\n" + printed + "\n"));
    }
}

TEST_F(InsertTest, RefusesARowThatIsNotRight) {
    struct Case {
        QString table;
        QStringList fields;
        const char* error;
        const char* names;
    };
    const QList<Case> cases{
        {u"Nothing"_s, {u"A=1"_s}, "3078: ", "Nothing"},
        {u"Tax"_s, {u"Tax=1"_s}, "3061: ", "Tax"},
        {u"Tax"_s, {u"TaxID"_s}, "5: ", "TaxID"},
        {u"Tax"_s, {u"=1"_s}, "5: ", "=1"},
        {u"Tax"_s, {u"TaxID=X"_s, u"taxid=Y"_s}, "3079: ", "taxid"},
        {u"Tax"_s, {u"TaxID=X"_s, u"Percent=17,5"_s}, "3421: ", "Percent"},
        {u"Tax"_s, {u"TaxID=X"_s, u"Name=a\\x"_s}, "3421: ", "Name"},
        {u"Sales"_s, {u"SalesID=1"_s, u"DateGenerated=31.12.2024"_s}, "3421: ", "DateGenerated"},
        {u"Tax"_s, {u"TaxID=p"_s}, "3022: ", ""},
        {u"Users"_s, {u"UserID=9"_s, u"UserName=KASIR"_s}, "3022: ", ""},
    };
    for (const Case& each : cases) {
        const Answer answer = Insert(each.table, each.fields);
        EXPECT_EQ(answer.exitCode, 1);
        EXPECT_EQ(answer.out, "");
        EXPECT_THAT(answer.err.toStdString(), StartsWith(each.error));
        EXPECT_THAT(answer.err.toStdString(), HasSubstr(each.names));
    }
    const Answer broken = Shell(u"$TOOL insert \"$1\" Unit Abr=x \"UnitName=$(printf 'a\\377')\""_s, {folder_});
    EXPECT_EQ(broken.exitCode, 1);
    EXPECT_THAT(broken.err.toStdString(), StartsWith("3421: "));
    EXPECT_EQ(Sql(u"SELECT TaxID FROM Tax"_s), Done("TaxID\nP\nN\n"));
    EXPECT_EQ(Sql(u"SELECT Count(*) AS N FROM Unit"_s), Done("N\n4\n"));
    EXPECT_EQ(Sql(u"SELECT Count(*) AS N FROM Sales"_s), Done("N\n0\n"));
}
