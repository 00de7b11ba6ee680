#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>

#include "store/DialectFuzz.h"
#include "store/DialectTexts.h"
#include "store/sqlite/QuerySql.h"
#include "support/CaseText.h"
#include "support/Files.h"
#include "support/UnderLocale.h"
#include "values/Error.h"

// Each golden file holds cases of one topic: a query text, a line "--", what comes of it, and "====" before the next
// one. With VELTON_REWRITE set, the files are written anew with what comes of them now.

using namespace Qt::StringLiterals;
using namespace store;
using namespace store::dialect;
using namespace store::test;

namespace {

QString Word(Type type) {
    static const QStringList words = {u"null"_s,     u"text"_s,   u"whole"_s, u"money"_s, u"decimal"_s,
                                      u"quantity"_s, u"double"_s, u"date"_s,  u"time"_s,  u"yesno"_s};
    return words[static_cast<int>(type)];
}

QString Word(Target target) {
    static const QStringList words = {u"text"_s,   u"pattern"_s, u"whole"_s, u"scaled"_s,
                                      u"double"_s, u"date"_s,    u"time"_s,  u"yesno"_s};
    return words[static_cast<int>(target)];
}

QString Shown(const BoundValue& value) {
    if (const auto* text = std::get_if<QByteArray>(&value)) return u'\'' + QString::fromUtf8(*text) + u'\'';
    if (const auto* number = std::get_if<double>(&value)) return QString::number(*number, 'g', 15);
    return QString::number(std::get<qint64>(value));
}

QString SqlOf(const Plan& plan) {
    sqlite::Pieces pieces = sqlite::Emit(plan, {});
    if (pieces.columns.empty()) pieces.columns = "rowid";
    return QString::fromStdString(plan.kind == Plan::Kind::Select ? SelectSql(pieces, false)
                                                                  : ActionSql(plan.kind, pieces));
}

QStringList ValuesOf(const Query& query) {
    QStringList shown;
    for (int i = 0; i < query.values.size(); ++i) shown += Word(query.plan->targets[i]) + u' ' + Shown(query.values[i]);
    return shown;
}

QString Shown(const Query& query) {
    QStringList lines = {SqlOf(*query.plan)};
    if (query.plan->kind == Plan::Kind::Select && !query.plan->output.isEmpty()) {
        QStringList columns;
        for (const OutputColumn& column : query.plan->output) {
            columns += column.name + u' ' + Word(column.type) +
                       (column.scale > 0 ? u'/' + QString::number(column.scale) : QString()) +
                       (column.field >= 0 ? u" #"_s + QString::number(column.field) : QString());
        }
        lines += (query.plan->table ? u"updatable: "_s : u"read only: "_s) + columns.join(u", ");
    }
    for (int i = 1; const QString& value : ValuesOf(query)) lines += u"?%1 %2"_s.arg(i++).arg(value);
    return lines.join(u'\n');
}

class DialectTest : public testing::Test {
protected:
    Query CompileOver(const QString& table, const QString& criteria) {
        return compiler_.CompileCriteria(criteria, *MainSchema().Find(table));
    }
    QString Values(const QString& text) { return ValuesOf(compiler_.Compile(text)).join(u", "_s); }
    QString Shape(const QString& a, const QString& b) {
        const Query first = compiler_.Compile(a);
        return first.plan == compiler_.Compile(b).plan ? u"same"_s : u"other"_s;
    }
    // Pieces repeated so many times; %1 counts them, %2 is one ahead.
    QString Repeated(const QStringList& at) {
        QString text = at[0];
        for (int i = 0; i < at[4].toInt(); ++i)
            text += QString(at[1]).replace(u"%1"_s, QString::number(i)).replace(u"%2"_s, QString::number(i + 1));
        text += at[2] + at[3].repeated(at[4].toInt());
        EXPECT_EQ(DialectFaultOn(text).toStdString(), "") << text.first(60).toStdString();
        compiler_.Compile(text);
        return u"taken"_s;
    }

    const UnderLocale locale_{QLocale(u"en_US"_s)};
    Compiler compiler_{MainSchema(), sqlite::Emit};
};

std::vector<std::string> Topics() {
    std::vector<std::string> topics;
    for (const QFileInfo& file : QDir(DialectFolder).entryInfoList({u"*.txt"_s}, QDir::Files))
        if (file.baseName() != u"system_queries") topics.push_back(file.baseName().toStdString());
    return topics;
}

class GoldenTest : public DialectTest, public testing::WithParamInterface<std::string> {
protected:
    QString Outcome(const QString& text) {
        try {
            return Shown(GetParam() == "criteria" ? CompileOver(u"Products"_s, text) : compiler_.Compile(text));
        } catch (const QueryError& error) {
            return QString::number(error.Number()) + u": "_s + error.Rendered();
        }
    }
};

TEST_P(GoldenTest, GivesForEachTextWhatItsFileSays) {
    const QString path = DialectFolder + QString::fromStdString(GetParam()) + u".txt"_s;
    QStringList cases = ContentsOf(path).chopped(1).split(u"\n====\n"_s);
    for (QString& one : cases) {
        const QString lines = u'\n' + one, text = lines.section(u"\n--\n"_s, 0, 0).mid(1);
        const QString outcome = Outcome(text).trimmed();
        EXPECT_EQ(outcome.toStdString(), lines.section(u"\n--\n"_s, 1).toStdString()) << text.toStdString();
        EXPECT_EQ(DialectFaultOn(text).toStdString(), "") << text.toStdString();
        one = text + (text.isEmpty() ? u"--\n"_s : u"\n--\n"_s) + outcome;
    }
    if (!qEnvironmentVariableIsSet("VELTON_REWRITE")) return;
    drivers::WriteFile(path, (cases.join(u"\n====\n"_s) + u'\n').toUtf8());
}

INSTANTIATE_TEST_SUITE_P(Dialect, GoldenTest, testing::ValuesIn(Topics()), [](const auto& info) { return info.param; });

class CompilerTest : public DialectTest, public testing::WithParamInterface<drivers::CaseText> {};

TEST_P(CompilerTest, GivesWhatItsRowsSay) {
    const QMap<QString, drivers::Function> functions{
        {u"Shape"_s, [this](const auto& at) { return Shape(at[0], at[1]); }},
        {u"Values"_s, [this](const auto& at) { return Values(at[0]); }},
        {u"Repeated"_s, [this](const auto& at) { return Repeated(at); }}};
    for (const drivers::Step& step : GetParam().steps.inner) CheckRows(step, functions);
}

INSTANTIATE_TEST_SUITE_P(Dialect, CompilerTest, testing::ValuesIn(drivers::ReadCases(u"store"_s, {u"compiler"_s})),
                         [](const auto& info) { return info.param.name.toStdString(); });

TEST_F(DialectTest, CriteriaOfOneTextOverTwoTablesAreTwoPlans) {
    const Query products = CompileOver(u"Products"_s, u"Unit = 'kg'"_s);
    EXPECT_EQ(products.plan->table->name, u"Products");
    EXPECT_EQ(CompileOver(u"SalesDetails"_s, u"Unit = 'kg'"_s).plan->table->name, u"SalesDetails");
    EXPECT_EQ(CompileOver(u"Products"_s, u"UNIT='l'"_s).plan, products.plan);
}

TEST_F(DialectTest, APlanSurvivesMoreShapesThanAreKept) {
    const Query first = compiler_.Compile(u"SELECT Qty FROM Products"_s);
    for (int i = 0; i < 2000; ++i) compiler_.Compile(u"SELECT Qty AS a%1 FROM Products"_s.arg(i));
    EXPECT_EQ(first.plan->output.front().name, u"Qty");
    EXPECT_EQ(SqlOf(*compiler_.Compile(u"SELECT Qty FROM Products"_s).plan), SqlOf(*first.plan));
}

TEST_F(DialectTest, AnErrorOnAKnownShapePointsIntoItsOwnText) {
    compiler_.Compile(u"UPDATE Products SET Qty = '1' WHERE ProdCode = '1'"_s);
    try {
        compiler_.Compile(u"UPDATE   Products SET Qty = 'dva' WHERE ProdCode = '1'"_s);
        FAIL();
    } catch (const QueryError& error) {
        EXPECT_EQ(error.Rendered().section(u'\n', 2), QString(28, u' ') + u"^^^^^"_s);
    }
}

TEST_F(DialectTest, TextsKeepEveryCharacter) {
    const QString nul = u"a"_s + QChar(0) + u"b"_s;
    EXPECT_EQ(Values(u"SELECT * FROM Tax WHERE Name = '"_s + nul + u"'"_s), u"text '"_s + nul + u"'"_s);
    EXPECT_NE(Values(u"SELECT * FROM Tax WHERE Name = '"_s + QChar(0xD83D) + u"'"_s), u"");
    EXPECT_THROW(Values(u"SELECT "_s + QChar(0xDE00) + u" FROM Tax"_s), QueryError);
}

}  // namespace
