#include <gmock/gmock.h>

#include <SQLiteCpp/SQLiteCpp.h>

#include "tools/StoreTool.h"

using namespace Qt::StringLiterals;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

class CheckTest : public ShopTest {
protected:
    Answer Check() const { return Tool({u"check"_s, folder_}); }

    // One invoice of two lines, as posting leaves it.
    void Post() const {
        ASSERT_EQ(Load(u"Products"_s,
                       "ProdCode\tQty\tUnit\tTaxID\tTaxPercent\tUnitPrice\nA\t1\tpcs\tP\t17\t5\nB\t2\tkg\tN\t0\t1\n"),
                  Done());
        ASSERT_EQ(Load(u"Sales"_s, "SalesID\tTotalSales\n1\t7.5\n"), Done());
        ASSERT_EQ(
            Load(u"Invoices"_s, "SalesID\tInvoiceID\tOrNo\tCashierID\tCashAmount\tTaxTotal\n1\t1\t1\t2\t7.5\t0.73\n"),
            Done());
        ASSERT_EQ(Load(u"SalesDetails"_s,
                       "InvoiceID\tProdCode\tTaxID\tAmount\tTaxAmount\n1\tA\tP\t5\t0.73\n1\tB\tN\t2.5\t0\n"),
                  Done());
    }
};

const QByteArray Sound = "Both stores are sound.\n";

}  // namespace

TEST_F(CheckTest, ASoundShopHasNoNotes) {
    Post();
    EXPECT_EQ(Check(), Done(Sound));
}

TEST_F(CheckTest, WhatACrashOrAScreenLeavesBehindIsANote) {
    struct Case {
        std::vector<const char16_t*> queries;
        QByteArray notes;
    };
    const std::vector<Case> cases{
        {{u"DELETE * FROM SalesDetails WHERE ProdCode = 'B'"},
         "note: invoices whose total is not the sum of their lines: 1 (7.5, not 5)\n"},
        {{u"DELETE * FROM SalesDetails"}, "note: Invoices.InvoiceID that has no SalesDetails.InvoiceID: 1\n"},
        {{u"DELETE * FROM Invoices"},
         "note: SalesDetails.InvoiceID that has no Invoices.InvoiceID: 1\n"
         "note: periods whose total is not the sum of their invoices: 1 (7.5, not 0)\n"},
        {{u"UPDATE Sales SET TotalSales = 3"},
         "note: periods whose total is not the sum of their invoices: 1 (3, not 7.5)\n"},
        {{u"DELETE * FROM Sales"}, "note: Invoices.SalesID that has no Sales.SalesID: 1\n"},
        {{u"DELETE * FROM Users WHERE UserID = '2'"}, "note: Invoices.CashierID that has no Users.UserID: 2\n"},
        {{u"DELETE * FROM Tax WHERE TaxID = 'N'"},
         "note: SalesDetails.TaxID that has no Tax.TaxID: N\nnote: Products.TaxID that has no Tax.TaxID: N\n"},
        {{u"DELETE * FROM Products WHERE ProdCode = 'A'"},
         "note: SalesDetails.ProdCode that has no Products.ProdCode: A\n"},
        {{u"UPDATE Products SET TaxPercent = Null, UnitPrice = Null WHERE ProdCode = 'A'",
          u"UPDATE Products SET TaxPercent = 10, ProdDescription = '12345678901234567890123456789012345678901'"
          u" WHERE ProdCode = 'B'",
          u"UPDATE SalesDetails SET ProdCode = ' 2345678901234''' WHERE ProdCode = 'B'",
          u"UPDATE Products SET ProdCode = ' 2345678901234''' WHERE ProdCode = 'B'"},
         "note: goods without a tax rate, which can't be sold: A\nnote: goods without a price, which can't be sold: A\n"
         "note: goods with an apostrophe in the code, which can't be looked up:  2345678901234'\n"
         "note: goods with blanks at an end of the code:  2345678901234'\n"
         "note: goods with a code longer than its box:  2345678901234'\n"
         "note: goods with a name longer than its box:  2345678901234'\n"
         "note: goods with another rate than that of their tax:  2345678901234'\n"},
        {{u"UPDATE Products SET Unit = 'box'"}, "note: Products.Unit that has no Unit.Abr: box\n"},
        {{u"UPDATE Products SET Qty = -1 WHERE ProdCode = 'A'"}, "note: products with a stock below zero: A\n"},
        {{u"UPDATE Products SET Tab = 320 WHERE ProdCode = 'A'"}, "note: products on a button that is not there: A\n"},
        {{u"UPDATE Products SET Tab = 7"}, "note: buttons of the click table with more than one product: 7\n"},
        {{u"DELETE * FROM TabControl WHERE TabControl = 3"},
         "note: tables with more or fewer rows than delivered: TabControl (9)\n"},
        {{u"UPDATE Invoices SET OrNo = '12A'"}, "note: Invoices.OrNo that is no number: 12A\n"},
        {{u"UPDATE SalesDetails SET TaxAmount = 0"},
         "note: invoices whose tax is not the sum of their lines' tax: 1 (0.73, not 0)\n"},
    };
    Post();
    const QByteArray before = ReadFile(folder_ + u"/ORVA.pos"_s);
    for (const Case& each : cases) {
        WriteFile(folder_ + u"/ORVA.pos"_s, before);
        for (const char16_t* query : each.queries) ASSERT_EQ(Sql(QString::fromUtf16(query)), Done());
        EXPECT_EQ(Check(), Done(each.notes + Sound)) << QString::fromUtf16(each.queries.front()).toStdString();
    }
}

TEST_F(CheckTest, TwoRegistersOnOneNumberAreANote) {
    Post();
    ASSERT_EQ(
        Insert(u"Invoices"_s, {u"SalesID=1"_s, u"InvoiceID=1"_s, u"OrNo=1"_s, u"CashierID=2"_s, u"CashAmount=2"_s}),
        Done());
    ASSERT_EQ(Insert(u"SalesDetails"_s, {u"InvoiceID=1"_s, u"ProdCode=a"_s, u"TaxID=p"_s, u"Amount=2"_s}), Done());
    EXPECT_EQ(Check(), Done("note: Invoices.InvoiceID that stands more than once: 1\n"
                            "note: periods whose total is not the sum of their invoices: 1 (7.5, not 9.5)\n" +
                            Sound));
}

TEST_F(CheckTest, ManyCasesOfOneKindAreToldInOneLine) {
    QByteArray lines = "SIF\tCONsif\tConSIFQty\n";
    for (int i = 10; i < 25; ++i) lines += "C" + QByteArray::number(i) + "\tA\t1\n";
    ASSERT_EQ(Load(u"Products"_s, "ProdCode\tUnit\tTaxID\tTaxPercent\tUnitPrice\nA\tpcs\tP\t17\t1\n"), Done());
    ASSERT_EQ(Load(u"ProductsCon"_s, lines), Done());
    EXPECT_EQ(Check(),
              Done("note: ProductsCon.SIF that has no Products.ProdCode: C10, C11, C12, C13, C14, C15, C16, C17, "
                   "C18, C19 and 5 more\n" +
                   Sound));
}

TEST_F(CheckTest, OptionsMustBeOneRow) {
    ASSERT_EQ(Tool({u"sql"_s, folder_, u"UPDATE Options SET Footer = NULL"_s, u"--options"_s}), Done());
    EXPECT_EQ(Check(), Done("note: settings without a value, which start-up stops at: Footer\n" + Sound));
    ASSERT_EQ(Tool({u"sql"_s, folder_, u"DELETE * FROM Options"_s, u"--options"_s}), Done());
    EXPECT_EQ(Check(), (Answer{1, "", "3343: Options store: Options has 0 rows instead of one.\n"}));
}

TEST_F(CheckTest, AStoreThatIsNotOurOwnAnyMoreIsDamage) {
    struct Case {
        std::vector<const char*> changes;
        const char* error;
    };
    const std::vector<Case> cases{
        {{"PRAGMA user_version = 99"}, "version 99"},
        {{"DROP TABLE Company"}, "Company"},
        {{"PRAGMA writable_schema = ON; UPDATE sqlite_master SET sql = replace(sql, 'Tel', 'Fax') WHERE name = "
          "'Company'"},
         "Tel"},
        // A value of the wrong type has no other way into a strict table.
        {{"PRAGMA writable_schema = ON; UPDATE sqlite_master SET sql = replace(sql, ') STRICT', ')') WHERE name = "
          "'Company'",
          "INSERT INTO Company (Ziro) VALUES (x'00')",
          "PRAGMA writable_schema = ON; UPDATE sqlite_master SET sql = sql || ' STRICT' WHERE name = 'Company'"},
         "Company.Ziro"},
    };
    const std::string main = (folder_ + u"/ORVA.pos"_s).toStdString();
    const QByteArray before = ReadFile(folder_ + u"/ORVA.pos"_s);
    for (const Case& each : cases) {
        WriteFile(folder_ + u"/ORVA.pos"_s, before);
        for (const char* change : each.changes) SQLite::Database(main, SQLite::OPEN_READWRITE).exec(change);
        const Answer answer = Check();
        EXPECT_EQ(answer.exitCode, 1);
        EXPECT_EQ(answer.out, "");
        EXPECT_THAT(answer.err.toStdString(), StartsWith("3343: Main store: "));
        EXPECT_THAT(answer.err.toStdString(), HasSubstr(each.error));
    }
}

TEST_F(CheckTest, ABrokenFileIsDamage) {
    QByteArray lines = "ProdCode\tProdDescription\n";
    for (int i = 0; i < 3000; ++i) lines += QByteArray::number(i) + "\tProduct " + QByteArray::number(i) + "\n";
    ASSERT_EQ(Load(u"Products"_s, lines), Done());
    QByteArray content = ReadFile(folder_ + u"/ORVA.pos"_s);
    const qsizetype at = content.lastIndexOf("Product 1500");
    ASSERT_GT(at, 0);
    for (qsizetype i = at - at % 4096; i < at; ++i) content[i] = '\x7F';
    WriteFile(folder_ + u"/ORVA.pos"_s, content);
    const Answer broken = Check();
    EXPECT_EQ(broken.exitCode, 1);
    EXPECT_THAT(broken.err.toStdString(), StartsWith("3343: Main store: "));

    WriteFile(folder_ + u"/opt.pos"_s, "gone");
    const Answer both = Check();
    EXPECT_THAT(both.err.toStdString(), HasSubstr("Main store: "));
    EXPECT_THAT(both.err.toStdString(), HasSubstr("\nOptions store: "));
}
