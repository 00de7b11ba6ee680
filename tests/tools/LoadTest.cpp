#include <gmock/gmock.h>

#include "tools/StoreTool.h"

using namespace Qt::StringLiterals;
using testing::StartsWith;

namespace {

using LoadTest = ShopTest;

}  // namespace

TEST_F(LoadTest, TakesWhatSqlPrints) {
    const QByteArray lines =
        "InvoiceID\tDateSold\tTimeSold\tCashAmount\tKupac\n"
        "1\t2024-12-31\t23:59:59\t-922337203685477.5808\t o'\\\\x\\t\\n\\r\\0 \U0001F600 \n"
        "2\t\t\t\t\n"
        "3\t0001-01-01\t00:00:00\t0.0001\tשלום\n";
    EXPECT_EQ(Load(u"Invoices"_s, lines), Done());
    EXPECT_EQ(Sql(u"SELECT InvoiceID, DateSold, TimeSold, CashAmount, Kupac FROM Invoices"_s), Done(lines));
}

TEST_F(LoadTest, TakesTheLineEndsOfEverySystem) {
    EXPECT_EQ(Load(u"unit"_s,
                   "\xEF\xBB\xBF"
                   "abr\tunitname\r\nbox\tBox\r\nbag\tBag"),
              Done());
    EXPECT_EQ(Sql(u"SELECT UnitName FROM Unit WHERE Abr LIKE 'b*'"_s), Done("UnitName\nBox\nBag\n"));
    // A line with nothing is a row of one null.
    EXPECT_EQ(Load(u"Company"_s, "Tel\n\n033\n"), Done());
    EXPECT_EQ(Sql(u"SELECT Tel FROM Company"_s), Done("Tel\n\n\n033\n"));
    EXPECT_EQ(Load(u"Unit"_s, "Abr\tUnitName\n"), Done());
}

TEST_F(LoadTest, NamesGoodsThatTheTillCouldNotSell) {
    EXPECT_EQ(Load(u"products"_s,
                   "ProdCode\tUnit\tUnitPrice\tTaxID\tTaxPercent\n1\tpcs\t5\tP\t17\n2\tpcs\t5\tP\t\n 3\tpcs\t5\tn\t17\n"
                   "4\tbox\t5\tX\t17\n5\tpcs\t\tP\t\n"),
              (Answer{0, "",
                      "warning: goods without a tax rate, which can't be sold: line 3, line 6\n"
                      "warning: goods with blanks at an end of the code: line 4\n"
                      "warning: goods with another rate than that of their tax: line 4\n"
                      "warning: goods with a unit that is not there: line 5\n"
                      "warning: goods with a tax that is not there: line 5\n"
                      "warning: goods without a price, which can't be sold: line 6\n"}));
    EXPECT_EQ(Sql(u"SELECT Count(*) AS N FROM Products"_s), Done("N\n5\n"));
}

TEST_F(LoadTest, AddsAllRowsOrNone) {
    struct Case {
        QByteArray lines;
        const char* error;
    };
    const QByteArray good = "TaxID\tPercent\nA\t1\nB\t2.5\n";
    const QList<Case> cases{
        {good + "C\t3,5\n", "3421: Line 4: Field Percent: '3,5' is no number"},
        {good + "C\n", "3421: Line 4: 1 cells for 2 fields"},
        {good + "C\t1\t2\n", "3421: Line 4: 3 cells for 2 fields"},
        {good + "\n", "3421: Line 4: 1 cells for 2 fields"},
        {good + "C\t1\nb\t9\n", "3022: Line 5: "},
        {good + "\xFF\t1\n", "3421: Line 4: Field TaxID: The text is not valid UTF-8"},
        {good + "a\rb\t1\n", "3421: Line 4: "},
        {good + QByteArray("a\0b\t1\n", 6), "3421: Line 4: "},
        {good + "a\\\t1\n", "3421: Line 4: Field TaxID: "},
        {"TaxID\tRate\nA\t1\n", "3061: Line 1: The table Tax has no field 'Rate'"},
        {"TaxID\ttaxid\nA\tB\n", "3079: Line 1: "},
        {"", "3265: Line 1: "},
    };
    for (const Case& each : cases) {
        const Answer answer = Load(u"Tax"_s, each.lines);
        EXPECT_EQ(answer.exitCode, 1);
        EXPECT_EQ(answer.out, "");
        EXPECT_THAT(answer.err.toStdString(), StartsWith(each.error));
        EXPECT_EQ(Sql(u"SELECT TaxID FROM Tax"_s), Done("TaxID\nP\nN\n"));
    }
    EXPECT_EQ(Load(u"Tax"_s, good), Done());
}

TEST_F(LoadTest, RefusesATableOrFileThatIsNotThere) {
    EXPECT_THAT(Load(u"Taxes"_s, "A\n1\n").err.toStdString(), StartsWith("3078: "));
    EXPECT_THAT(Tool({u"load"_s, folder_, u"Tax"_s, Path(u"none.tsv"_s)}).err.toStdString(), StartsWith("76: "));
    EXPECT_THAT(Tool({u"load"_s, folder_, u"Tax"_s, folder_}).err.toStdString(), StartsWith("75: "));
}
