#include <gmock/gmock.h>

#include "tools/StoreTool.h"

using namespace Qt::StringLiterals;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

struct Case {
    const char16_t* query;
    const char* out;
};

using SqlTest = ShopTest;

}  // namespace

TEST_F(SqlTest, PrintsRowsUnderTheirColumnNames) {
    ASSERT_EQ(Load(u"Invoices"_s,
                   "SalesID\tInvoiceID\tDateSold\tTimeSold\tCashAmount\tTaxTotal\tBank\n"
                   "1\t9\t2024-04-03\t08:05:09\t1234.5\t0.5\t \n"
                   "1\t10\t\t\t-0.0001\t\t\n"),
              Done());
    ASSERT_EQ(Insert(u"Custumer"_s, {u"Sifra=7"_s, u"Naziv=Đuro's \\\\ \\tšop\\n\U0001F600 שלום"_s}), Done());
    const std::vector<Case> cases{
        {u"SELECT UserID, UserName, Del FROM Users", "UserID\tUserName\tDel\n1\tadmin\tTrue\n2\tkasir\tFalse\n"},
        {u"select percent, NAME from tax where taxid = 'N'", "Percent\tName\n0\tWithout tax\n"},
        {u"SELECT * FROM Products",
         "ID\tProdCode\tProdDescription\tQty\tUnit\tUnitPrice\tUnitPricebezPDV\tVPUnitPrice\t"
         "VPUnitPricebezPDV\tTaxID\tTaxPercent\tPict\tTab\n"},
        {u"SELECT InvoiceID, DateSold, TimeSold, CashAmount, TaxTotal, Bank, Kas FROM Invoices",
         "InvoiceID\tDateSold\tTimeSold\tCashAmount\tTaxTotal\tBank\tKas\n"
         "9\t2024-04-03\t08:05:09\t1234.5\t0.5\t \t0\n10\t\t\t-0.0001\t\t\t0\n"},
        {u"SELECT InvoiceID FROM Invoices WHERE DateSold = #04-03-2024#", "InvoiceID\n9\n"},
        {u"SELECT Max(Val([InvoiceID])) AS [current] FROM Invoices", "current\n10\n"},
        {u"SELECT Max(Val([LoginNo])) AS [current] FROM Login", "current\n\n"},
        {u"SELECT Sum(CashAmount) AS Ukupno, Sum(TaxTotal) AS PDV, [ukupno]-[pdv] AS IznosBezPDV FROM Invoices",
         "Ukupno\tPDV\tIznosBezPDV\n1234.4999\t0.5\t1233.9999\n"},
        {u"SELECT Naziv FROM Custumer WHERE Sifra = 7", "Naziv\nĐuro's \\\\ \\tšop\\n\U0001F600 שלום\n"},
        {u"SELECT Naziv FROM Custumer WHERE Naziv LIKE 'đURO''s*'", "Naziv\nĐuro's \\\\ \\tšop\\n\U0001F600 שלום\n"},
    };
    for (const Case& each : cases) EXPECT_EQ(Sql(QString::fromUtf16(each.query)), Done(each.out));
}

TEST_F(SqlTest, KeepsItsFormUnderEveryLocale) {
    ASSERT_EQ(Insert(u"Products"_s, {u"ProdCode=1"_s, u"UnitPrice=1234.5"_s, u"Qty=-0.25"_s}), Done());
    ASSERT_EQ(Insert(u"Sales"_s, {u"SalesID=1"_s, u"DateGenerated=2024-02-29"_s, u"TimeGenerated=21:00:01"_s}), Done());
    for (const QString& locale : {u"C"_s, u"hr_HR.UTF-8"_s, u"de_DE.UTF-8"_s, u"ar_EG.UTF-8"_s, u"sv_SE.UTF-8"_s}) {
        EXPECT_EQ(Tool({u"sql"_s, folder_, u"SELECT UnitPrice, Qty FROM Products"_s}, locale),
                  Done("UnitPrice\tQty\n1234.5\t-0.25\n"));
        EXPECT_EQ(Tool({u"sql"_s, folder_, u"SELECT DateGenerated, TimeGenerated, Closed FROM Sales"_s}, locale),
                  Done("DateGenerated\tTimeGenerated\tClosed\n2024-02-29\t21:00:01\tFalse\n"));
        EXPECT_EQ(Tool({u"insert"_s, folder_, u"Tax"_s, u"TaxID="_s + locale, u"Percent=7.5"_s}, locale), Done());
    }
    EXPECT_EQ(Sql(u"SELECT Sum(Percent) AS S FROM Tax"_s), Done("S\n54.5\n"));
}

TEST_F(SqlTest, RunsActionQueriesInSilence) {
    EXPECT_EQ(Sql(u"UPDATE TabControl SET TabDescription = 'Pića' WHERE TabControl = 1"_s), Done());
    EXPECT_EQ(Sql(u"SELECT TabDescription FROM TabControl WHERE TabControl = 1"_s), Done("TabDescription\nPića\n"));
    EXPECT_EQ(Sql(u" delete * FROM TabControl WHERE TabControl > 2"_s), Done());
    EXPECT_EQ(Sql(u"SELECT Count(*) AS N FROM TabControl"_s), Done("N\n2\n"));
    EXPECT_EQ(Tool({u"sql"_s, folder_, u"UPDATE Options SET FiskalniRacunDA = '2'"_s, u"--options"_s}), Done());
    EXPECT_EQ(Tool({u"sql"_s, u"--options"_s, folder_, u"SELECT FiskalniRacunDA, Kasa FROM Options"_s}),
              Done("FiskalniRacunDA\tKasa\n2\t1\n"));
}

TEST_F(SqlTest, TellsNumberDescriptionAndPlaceOfAnError) {
    const std::vector<Case> cases{
        {u"SELECT Nme FROM Users", "3061: "},
        {u"SELECT * FROM Userz", "3078: "},
        {u"SELECT * FROM Users WHERE UserName = 'o'x'", "3075: "},
        {u"", "3075: "},
        {u"DROP Users", "3075: "},
        {u"SELECT * FROM Users; DELETE * FROM Users", "3075: "},
        {u"DELETE * FROM Nothing", "3078: "},
    };
    for (const Case& each : cases) {
        const Answer answer = Sql(QString::fromUtf16(each.query));
        EXPECT_EQ(answer.exitCode, 1);
        EXPECT_EQ(answer.out, "");
        EXPECT_THAT(answer.err.toStdString(), StartsWith(each.out));
    }
    const QByteArrayList lines = Sql(u"SELECT UserID,\n  Nme FROM Users"_s).err.split('\n');
    ASSERT_GE(lines.size(), 3);
    EXPECT_EQ(lines[1], "  Nme FROM Users");
    EXPECT_EQ(lines[2], "  ^^^");
    EXPECT_EQ(Sql(u"SELECT UserName FROM Users"_s).out, "UserName\nadmin\nkasir\n");
}

TEST_F(SqlTest, FailsWhenItsOutputCannotBeWritten) {
    const Answer full = Shell(u"$TOOL sql \"$1\" 'SELECT * FROM Users' > /dev/full"_s, {folder_});
    EXPECT_EQ(full.exitCode, 1);
    EXPECT_THAT(full.err.toStdString(), StartsWith("61: "));
    const Answer closed = Shell(u"$TOOL sql \"$1\" 'SELECT * FROM Users' >&-"_s, {folder_});
    EXPECT_EQ(closed.exitCode, 1);
    EXPECT_THAT(closed.err.toStdString(), StartsWith("57: "));
    const Answer pipe =
        Shell(u"(sleep 0.3; $TOOL sql \"$1\" 'SELECT * FROM Users'; echo $? > \"$2\") | true; cat \"$2\""_s,
              {folder_, Path(u"code"_s)});
    EXPECT_THAT(pipe.err.toStdString(), StartsWith("57: "));
    EXPECT_EQ(pipe.out, "1\n");
    const Answer help = Shell(u"$TOOL --help > /dev/full"_s, {});
    EXPECT_EQ(help.exitCode, 1);
}

TEST_F(SqlTest, PrintsManyRows) {
    QByteArray lines = "ProdCode\tQty\n";
    for (int i = 0; i < 20'000; ++i) lines += QByteArray::number(100'000 + i) + '\t' + QByteArray::number(i) + ".5\n";
    ASSERT_EQ(Load(u"Products"_s, lines).exitCode, 0);
    EXPECT_EQ(Sql(u"SELECT ProdCode, Qty FROM Products"_s), Done(lines));
    EXPECT_EQ(Sql(u"SELECT ProdCode, Sum(Qty) AS Q FROM Products GROUP BY ProdCode"_s).out.count('\n'), 20'001);
}

TEST_F(SqlTest, TellsHowItWantsToBeCalled) {
    for (const QStringList& arguments : {QStringList{}, QStringList{u"drop"_s}, QStringList{u"sql"_s, folder_},
                                         QStringList{u"sql"_s, folder_, u"a"_s, u"b"_s},
                                         QStringList{u"sql"_s, folder_, u"SELECT * FROM Tax"_s, u"--mian"_s},
                                         QStringList{u"insert"_s, folder_, u"Tax"_s}}) {
        const Answer answer = Tool(arguments);
        EXPECT_EQ(answer.exitCode, 1);
        EXPECT_EQ(answer.out, "");
        EXPECT_THAT(answer.err.toStdString(), StartsWith("5: "));
        EXPECT_EQ(answer.err.count('\n'), 1);
    }
    const Answer help = Tool({u"--help"_s});
    EXPECT_EQ(help.exitCode, 0);
    for (const char* call : {"new", "sql", "insert", "load", "check", "backup", "\\t"})
        EXPECT_THAT(help.out.toStdString(), HasSubstr(call));
}
