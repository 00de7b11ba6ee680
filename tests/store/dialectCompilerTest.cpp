#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QLocale>

#include "store/dialect/Plan.h"
#include "store/dialectFuzz.h"
#include "store/dialectStore.h"
#include "store/sqlite/Emitter.h"
#include "values/Error.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;
using namespace store;
using namespace store::dialect;
using testing::ElementsAre;

namespace {

const QLocale Comma(QLocale::Bosnian, QLocale::BosniaAndHerzegovina);
const QLocale Point(QLocale::English, QLocale::UnitedStates);

class DialectCompiler : public testing::Test {
protected:
    DialectCompiler() { values::SetUserLocale(Point); }

    int ErrorOf(const QString& text) {
        try {
            compiler_.Compile(text);
            return 0;
        } catch (const QueryError& error) {
            return error.Number();
        }
    }

    bool OneShape(const QString& a, const QString& b) {
        const Query first = compiler_.Compile(a);
        return first.plan == compiler_.Compile(b).plan;
    }

    Compiler compiler_{MainSchema(), store::sqlite::Emit};
};

QString Nested(const QString& before, const QString& open, const QString& middle, const QString& close, int times) {
    return before + open.repeated(times) + middle + close.repeated(times);
}

}  // namespace

TEST_F(DialectCompiler, takes_every_query_text_of_the_system) {
    QFile file(QStringLiteral(TEST_DATA "/dialect/system_queries.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    Compiler options(OptionsSchema());
    DialectStore mainStore(MainSchema()), optionsStore(OptionsSchema());
    int texts = 0;
    for (const QString& text : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
        if (text.startsWith(u'#')) continue;
        ++texts;
        const bool ofOptions = text.endsWith(u"Options");
        try {
            const Query query = (ofOptions ? options : compiler_).Compile(text);
            const QString refusal = (ofOptions ? optionsStore : mainStore).Refusal(*query.plan);
            EXPECT_EQ(refusal.toStdString(), "") << text.toStdString();
        } catch (const QueryError& error) {
            ADD_FAILURE() << error.Rendered().toStdString();
        }
    }
    EXPECT_GT(texts, 80);
}

TEST_F(DialectCompiler, texts_of_one_shape_share_a_plan_but_not_their_values) {
    const Query first = compiler_.Compile(u"SELECT * FROM Products WHERE ProdCode = '38' AND Qty > 1.5"_s);
    const Query second = compiler_.Compile(u"select  *\nfrom [products] where PRODCODE='č''' and qty>22.25"_s);
    EXPECT_EQ(first.plan, second.plan);
    EXPECT_THAT(first.values, ElementsAre(BoundValue(QByteArray("38")), BoundValue(qint64{15'000})));
    EXPECT_THAT(second.values, ElementsAre(BoundValue(QByteArray("č'")), BoundValue(qint64{222'500})));
}

TEST_F(DialectCompiler, texts_that_mean_something_else_are_other_shapes) {
    const QString base = u"SELECT Qty AS a FROM Products WHERE Qty = 1"_s;
    for (const QString& other : {
             u"SELECT Qty AS A FROM Products WHERE Qty = 1"_s,
             u"SELECT Qty AS [a FROM] FROM Products WHERE Qty = 1"_s,
             u"SELECT Qty AS a FROM Products WHERE Qty = 1.5"_s,
             u"SELECT Qty AS a FROM Products WHERE Qty = 1.23456"_s,
             u"SELECT Qty AS a FROM Products WHERE Qty >= 1"_s,
             u"SELECT Tab AS a FROM Products WHERE Qty = 1"_s,
             u"SELECT Qty AS a FROM Products WHERE NOT Qty = 1"_s,
         }) {
        EXPECT_FALSE(OneShape(base, other)) << other.toStdString();
    }
}

TEST_F(DialectCompiler, criteria_of_one_text_over_two_tables_are_two_plans) {
    const QString text = u"Unit = 'kg'"_s;
    const Query products = compiler_.CompileCriteria(text, *MainSchema().Find(u"Products"));
    const Query details = compiler_.CompileCriteria(text, *MainSchema().Find(u"SalesDetails"));
    EXPECT_EQ(products.plan->table->name, u"Products");
    EXPECT_EQ(details.plan->table->name, u"SalesDetails");
    EXPECT_EQ(products.plan, compiler_.CompileCriteria(u"UNIT='l'"_s, *MainSchema().Find(u"Products")).plan);
}

TEST_F(DialectCompiler, a_plan_survives_more_shapes_than_are_kept) {
    const Query first = compiler_.Compile(u"SELECT Qty FROM Products"_s);
    for (int i = 0; i < 2000; ++i) compiler_.Compile(u"SELECT Qty AS a%1 FROM Products"_s.arg(i));
    EXPECT_EQ(first.plan->output.front().name, u"Qty");
    EXPECT_EQ(SqlOf(*compiler_.Compile(u"SELECT Qty FROM Products"_s).plan), SqlOf(*first.plan));
}

TEST_F(DialectCompiler, an_error_on_a_known_shape_points_into_its_own_text) {
    compiler_.Compile(u"UPDATE Products SET Qty = '1' WHERE ProdCode = '1'"_s);
    try {
        compiler_.Compile(u"UPDATE   Products SET Qty = 'dva' WHERE ProdCode = '1'"_s);
        FAIL();
    } catch (const QueryError& error) {
        EXPECT_EQ(error.Number(), ConversionFailed);
        EXPECT_EQ(error.GetStage(), Stage::Literal);
        EXPECT_EQ(error.GetSpan().offset, 28);
        EXPECT_EQ(error.GetSpan().length, 5);
    }
}

TEST_F(DialectCompiler, assigned_texts_are_read_in_the_locale_and_bare_numbers_are_not) {
    const QString quoted = u"UPDATE Products SET Qty = '12,50', Pict = 1.25"_s;
    values::SetUserLocale(Comma);
    EXPECT_THAT(compiler_.Compile(quoted).values,
                ElementsAre(BoundValue(qint64{125'000}), BoundValue(QByteArray("1,25"))));
    EXPECT_THAT(compiler_.Compile(u"UPDATE Products SET Qty = 12.50 WHERE Qty > 1.5"_s).values,
                ElementsAre(BoundValue(qint64{125'000}), BoundValue(qint64{15'000})));
    EXPECT_THAT(compiler_.Compile(u"UPDATE Sales SET DateStoped = '25.3.2024'"_s).values,
                ElementsAre(BoundValue(QDate(2024, 3, 25).toJulianDay())));
    values::SetUserLocale(Point);
    EXPECT_EQ(ErrorOf(quoted), ConversionFailed);
}

TEST_F(DialectCompiler, texts_keep_every_character) {
    const QString nul = u"a"_s + QChar(0) + u"b"_s;
    EXPECT_THAT(compiler_.Compile(u"SELECT * FROM Tax WHERE Name = '"_s + nul + u"'"_s).values,
                ElementsAre(BoundValue(QByteArray("a\0b", 3))));
    const QString halfPair = u"SELECT * FROM Tax WHERE Name = '"_s + QChar(0xD83D) + u"'"_s;
    EXPECT_EQ(compiler_.Compile(halfPair).values.size(), 1);
    EXPECT_EQ(ErrorOf(u"SELECT "_s + QChar(0xDE00) + u" FROM Tax"_s), SyntaxError);
}

TEST_F(DialectCompiler, unreasonable_texts_are_syntax_errors_and_nothing_worse) {
    const QString where = u"SELECT * FROM Products WHERE "_s;
    QString growing = u"SELECT Qty+Qty AS a0"_s;
    for (int i = 1; i < 60; ++i) growing += u", a%1+a%1 AS a%2"_s.arg(QString::number(i - 1), QString::number(i));
    const QStringList texts = {
        Nested(where, u"("_s, u"Qty = 1"_s, u")"_s, 10'000),
        Nested(where, u"("_s, {}, {}, 10'000),
        Nested(where, u"NOT "_s, u"Qty = 1"_s, {}, 10'000),
        Nested(where + u"Qty = "_s, u"-"_s, u"1"_s, {}, 10'000),
        Nested(where + u"Qty = 1"_s, u" + 1"_s, {}, {}, 10'000),
        Nested(where + u"Qty = 1"_s, u" AND Qty = 1"_s, {}, {}, 10'000),
        Nested(where, u"Qty - ("_s, u"1"_s, u")"_s, 20) + u" = 1"_s,
        Nested(where, u"Qty IN (1, "_s, u"2"_s, u")"_s, 20),
        Nested(u"SELECT * FROM "_s, u"("_s, u"Tax"_s, u")"_s, 10'000),
        Nested(u"SELECT * FROM "_s, u"Tax INNER JOIN ("_s, u"Tax"_s, u") ON 1 = 1"_s, 100),
        Nested(u"SELECT *"_s, u", *"_s, u" FROM Products"_s, {}, 500),
        Nested(u"SELECT Qty"_s, u", Qty"_s, u" FROM Products"_s, {}, 5'000),
        Nested(where + u"Qty IN (1"_s, u", 1"_s, u")"_s, {}, 50'000),
        growing + u" FROM Products"_s,
    };
    for (const QString& text : texts) {
        EXPECT_EQ(ErrorOf(text), SyntaxError) << text.first(60).toStdString();
        EXPECT_EQ(DialectFaultOn(text).toStdString(), "") << text.first(60).toStdString();
    }
}

TEST_F(DialectCompiler, long_but_reasonable_texts_compile) {
    const QString where = u"SELECT * FROM Products WHERE "_s;
    for (const QString& text : {
             Nested(where, u"("_s, u"Qty = 1"_s, u")"_s, 200),
             Nested(where + u"Qty = 1"_s, u" OR Qty = 1"_s, {}, {}, 200),
             Nested(where + u"Qty IN (1"_s, u", 1"_s, u")"_s, {}, 10'000),
             Nested(where, u"Qty - ("_s, u"1"_s, u")"_s, 10) + u" = 1"_s,
         }) {
        EXPECT_EQ(ErrorOf(text), 0) << text.first(60).toStdString();
        EXPECT_EQ(DialectFaultOn(text).toStdString(), "") << text.first(60).toStdString();
    }
}

// What a computed assignment leaves in a field, in the engine's units.
TEST_F(DialectCompiler, computed_assignments_round_half_to_even_and_never_overflow_silently) {
    struct Case {
        QString qty, assignment, left;
    };
    const Case cases[] = {
        {u"1.0001"_s, u"Qty = Qty * 0.5"_s, u"5000"_s},          // 0.50005
        {u"1.0003"_s, u"Qty = Qty * 0.5"_s, u"5002"_s},          // 0.50015
        {u"-1.0003"_s, u"Qty = Qty * 0.5"_s, u"-5002"_s},        //
        {u"1.0001"_s, u"Qty = Qty * 0.5001"_s, u"5002"_s},       // 0.50015001
        {u"0.0001"_s, u"Qty = Qty * -0.5"_s, u"0"_s},            // -0.00005
        {u"2.5"_s, u"Tab = Qty"_s, u"2"_s},                      //
        {u"3.5"_s, u"Tab = Qty"_s, u"4"_s},                      //
        {u"-2.5"_s, u"Tab = Qty * 1"_s, u"-2"_s},                //
        {u"5"_s, u"Tab = Qty / 2"_s, u"2"_s},                    //
        {u"7"_s, u"Tab = Qty / 2"_s, u"4"_s},                    //
        {u"1"_s, u"Qty = Qty / 3"_s, u"3333"_s},                 //
        {u"1"_s, u"Qty = Qty / 0"_s, u""_s},                     //
        {u"1"_s, u"Qty = Tab"_s, u"-10000"_s},                   //
        {u"1"_s, u"Qty = Val(ProdCode) + 0.25"_s, u"122500"_s},  //
        {u"1"_s, u"Tab = Qty > 0"_s, u"-1"_s},                   //
        {u"1"_s, u"Unit = Tab & '/' & (Tab < 0)"_s, u"-1/True"_s},
        {u"1"_s, u"Qty = Null + Qty"_s, u""_s},
        {u"900000000000000"_s, u"Qty = Qty * 2"_s, u"integer overflow"_s},
        {u"900000000000000"_s, u"Qty = Qty + Qty"_s, u"integer overflow"_s},
        {u"900000000000000"_s, u"Qty = Qty * 1.5"_s, u"integer overflow"_s},
        {u"900000000000000"_s, u"Qty = Qty / 0.5"_s, u"integer overflow"_s},
    };
    for (const Case& one : cases) {
        DialectStore store(MainSchema());
        store.RunSql("INSERT INTO Products (ProdCode, Tab) VALUES ('12A', -1)");
        store.Run(compiler_.Compile(u"UPDATE Products SET Qty = "_s + one.qty));
        QStringList left = store.Run(compiler_.Compile(u"UPDATE Products SET "_s + one.assignment));
        if (left.isEmpty()) {
            left =
                store.Run(compiler_.Compile(u"SELECT "_s + one.assignment.section(u' ', 0, 0) + u" FROM Products"_s));
        }
        EXPECT_EQ(left.join(u'\n').toStdString(), one.left.toStdString())
            << one.qty.toStdString() << ": " << one.assignment.toStdString();
    }
}

// Truth of conditions over one row: Qty 2.5, UnitPrice 4, Tab 3, Unit 'kg', Pict null.
TEST_F(DialectCompiler, conditions_hold_across_scales_and_cases) {
    DialectStore store(MainSchema());
    store.RunSql("INSERT INTO Products (ProdCode, Qty, UnitPrice, Tab, Unit) VALUES ('12A', 25000, 40000, 3, 'kg')");
    const std::pair<QString, bool> conditions[] = {
        {u"Qty = 2.5"_s, true},
        {u"Qty * UnitPrice = 10"_s, true},
        {u"Qty * UnitPrice * Tab = 30"_s, true},
        {u"Qty * UnitPrice * Qty = 25"_s, true},
        {u"Qty + Tab = 5.5 AND Tab - Qty = 0.5"_s, true},
        {u"UnitPrice / Qty = 1.6"_s, true},
        {u"Tab / 2 = 1.5"_s, true},
        {u"Tab BETWEEN Qty AND UnitPrice"_s, true},
        {u"Tab IN (1, 2.5, 3)"_s, true},
        {u"Qty IN (1, 2.5, Tab)"_s, true},
        {u"Val(ProdCode) = 12 AND Val(ProdCode) > Qty"_s, true},
        {u"Unit = 'KG' AND 'KG' = Unit AND Unit & '' = 'Kg' AND 'a' = 'A'"_s, true},
        {u"Unit & Pict & 'x' IN ('KGX')"_s, true},
        {u"Unit + Pict IS NULL AND Pict IS NULL"_s, true},
        {u"Pict = Null OR Pict <> 'x' OR NOT Pict = 'x'"_s, false},
        {u"(Tab = 3) = True AND (Tab = 3) = -1 AND NOT (Tab = 4) = True"_s, true},
        {u"-(Tab = 3) = 1 AND -Tab = -3 AND - -Tab = 3 AND Tab - -1 = 4"_s, true},
        {u"NOT NOT Tab = 3 AND NOT Tab = 4"_s, true},
        {u"Qty = 2.50001"_s, false},
        {u"1 - 2 - 3 = -4 AND 1 - (2 - 3) = 2 AND 2 + 3 * 4 = 14 AND 12 / 2 / 3 = 2 AND 12 / (2 / 3) > 17"_s, true},
    };
    for (const auto& [condition, holds] : conditions) {
        const QStringList rows = store.Run(compiler_.Compile(u"SELECT Tab FROM Products WHERE "_s + condition));
        EXPECT_EQ(rows, holds ? QStringList{u"3"_s} : QStringList{}) << condition.toStdString();
    }
}
