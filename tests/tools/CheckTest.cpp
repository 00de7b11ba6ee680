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
    // What it says but for the lines that tell of periods; they have a test of their own.
    Answer CheckButPeriods() const {
        Answer answer = Check();
        QByteArrayList lines = answer.out.split('\n');
        lines.removeIf([](const QByteArray& line) { return line.startsWith("Open period") || line.startsWith("End"); });
        answer.out = lines.join('\n');
        return answer;
    }

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
    EXPECT_EQ(Check(), Done(Sound));
    Post();
    EXPECT_EQ(Check(), Done("Open period: 1 invoice, total 7.5, tax 0.73, numbers 1; all agrees\n" + Sound));
}

TEST_F(CheckTest, EachPeriodIsToldInALine) {
    ASSERT_EQ(Load(u"Sales"_s,
                   "SalesID\tTotalSales\tClosed\tGrupni\tDateStoped\n1\t3\tTrue\t1\t2026-11-20\n"
                   "2\t4\tTrue\t1\t2026-11-20\n3\t0\tTrue\t2\t2026-11-21\n4\t9\tTrue\t3\t2026-11-22\n5\t\t\t\t\n"),
              Done());
    // Number 5 is left out within a period, 8 between two of them, and the open one began anew.
    ASSERT_EQ(Load(u"Invoices"_s,
                   "SalesID\tInvoiceID\tOrNo\tCashAmount\tTaxTotal\n1\t1\t3\t3\t0.5\n2\t2\t4\t4\t0\n"
                   "4\t3\t6\t5\t1\n4\t4\t7\t3\t1\n4\t5\t7\t1\t0\n5\t6\t1\t1\t0\n5\t7\t3\t1\t0\n"),
              Done());
    ASSERT_EQ(Load(u"SalesDetails"_s,
                   "InvoiceID\tAmount\tTaxAmount\n1\t2\t0.2\n1\t1\t0.3\n2\t4\t0\n3\t5\t0.5\n4\t2\t1\n5\t1\t0\n"
                   "6\t1\t0\n7\t1\t0\n"),
              Done());
    EXPECT_THAT(Check().out.toStdString(),
                HasSubstr("End Report 1 of 2026-11-20: 2 invoices, total 7, tax 0.5, numbers 3-4; all agrees\n"
                          "End Report 2 of 2026-11-21: no invoices; all agrees\n"
                          "End Report 3 of 2026-11-22: 3 invoices, total 9, tax 2, numbers 6-7; differs: lines 8, "
                          "tax of the lines 1.5, numbers left out 5, numbers twice 7\n"
                          "Open period: 2 invoices, total 2, tax 0, numbers 1-3; differs: takings 0, "
                          "numbers left out 2\n"));
}

TEST_F(CheckTest, TheRibbonIsHeldAgainstTheStore) {
    const auto receipt = [](const char* head, const char* total) {
        return QByteArray("Shop\r\n\r\n") + head + "\r\n----\r\nA\r\nTOTAL......... not this one: 9\r\n----\r\n" +
               "     Subtotal......KM: 6.77\r\n     Tax...........KM: 0.73\r\n     TOTAL.........KM: " + total +
               "\r\n\r\n\r\n\r\n";
    };
    struct Case {
        QByteArray ribbon;
        const char* damage;
        const char* note;
    };
    const char* const notPrinted =
        "note: invoices that are not on the ribbon (never printed, or by another register): ";
    const std::vector<Case> cases{
        {"", "", ""},
        {receipt("INVOICE No:1    25.11.2026  10:00:00", "7.50"), "", "2\n"},
        // Twice, and under a locale with a comma; the A4 page and the narrow one have the day on a line of its own.
        {receipt("INVOICE No:1    25.11.2026  10:00:00", "7,50") +
             receipt("INVOICE No:1    25.11.2026  10:00:05", "7,50") +
             receipt("Date of issue:25.11.2026\r\n \r\nINVOICE No:2", "2,00"),
         "", ""},
        {receipt("Date:25.11.2026  10:00:00\r\nINVOICE No:2", "2.00"), "", ""},
        // Cut at both ends.
        {receipt("INVOICE No:1    25.11.2026  10:00:00", "7.50").mid(10).chopped(20) + "INVOICE No:2    25.11.20", "",
         ""},
        {receipt("INVOICE No:1    25.11.2026  10:00:00", "7.51") +
             receipt("INVOICE No:2    23.11.2026  10:00:00", "2.00") + receipt("INVOICE No:17", "-1.20"),
         "1 (2026-11-25, 7.51), 2 (2026-11-23, 2), 17 (-1.2)", ""},
    };
    Post();
    ASSERT_EQ(Insert(u"Invoices"_s, {u"SalesID=1"_s, u"InvoiceID=2"_s, u"OrNo=2"_s, u"CashAmount=2"_s}), Done());
    ASSERT_EQ(Sql(u"UPDATE Invoices SET DateSold = #11-25-2026#"_s), Done());
    for (const Case& each : cases) {
        WriteFile(folder_ + u"/invoices.txt"_s, each.ribbon);
        const Answer answer = Check();
        const QByteArray damage(each.damage);
        EXPECT_EQ(answer.err,
                  damage.isEmpty()
                      ? ""
                      : "3167: The ribbon of printed invoices has receipts that the store lacks: " + damage + '\n');
        EXPECT_EQ(answer.out.contains(QByteArray(notPrinted) + each.note), *each.note != '\0')
            << answer.out.toStdString();
        EXPECT_EQ(answer.out.count(notPrinted), *each.note == '\0' ? 0 : 1);
    }
    // Switched off, it has nothing to say about what came after its last receipt.
    WriteFile(folder_ + u"/invoices.txt"_s, cases[1].ribbon);
    ASSERT_EQ(Tool({u"sql"_s, folder_, u"UPDATE Options SET TrakaRacunaFileDA = False"_s, u"--options"_s}), Done());
    EXPECT_EQ(Check().out.count(notPrinted), 0);
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
         "note: SalesDetails.TaxID that has no Tax.TaxID: N\nnote: goods with a tax that is not there: B\n"},
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
        {{u"UPDATE Products SET Unit = 'box'"}, "note: goods with a unit that is not there: A, B\n"},
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
        EXPECT_EQ(CheckButPeriods(), Done(each.notes + Sound))
            << QString::fromUtf16(each.queries.front()).toStdString();
    }
}

TEST_F(CheckTest, TwoRegistersOnOneNumberAreANote) {
    Post();
    ASSERT_EQ(
        Insert(u"Invoices"_s, {u"SalesID=1"_s, u"InvoiceID=1"_s, u"OrNo=1"_s, u"CashierID=2"_s, u"CashAmount=2"_s}),
        Done());
    ASSERT_EQ(Insert(u"SalesDetails"_s, {u"InvoiceID=1"_s, u"ProdCode=a"_s, u"TaxID=p"_s, u"Amount=2"_s}), Done());
    EXPECT_EQ(CheckButPeriods(), Done("note: Invoices.InvoiceID that stands more than once: 1\n"
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
    SQLite::Database(main, SQLite::OPEN_READWRITE).exec("DROP INDEX ProductsKeyProdCode");
    EXPECT_THAT(Check().out.toStdString(), HasSubstr("not unique: Products.ProdCode\n"));
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
    ASSERT_EQ(Load(u"Products"_s, lines).exitCode, 0);
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
