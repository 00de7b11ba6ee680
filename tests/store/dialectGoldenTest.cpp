#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QLocale>

#include "store/dialect/Lexer.h"
#include "store/dialect/Parser.h"
#include "store/dialect/Printer.h"
#include "store/dialectStore.h"
#include "values/Error.h"
#include "values/Locale.h"

// Each file holds cases of one topic: a query text, a line "--", what comes of it, and "====" before the next one. With
// VELTON_REWRITE set, the files are written anew with what comes of them now.

using namespace Qt::StringLiterals;
using namespace store;
using namespace store::dialect;

namespace {

struct Case {
    QString text, expected;
};

QList<Case> Read(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QList<Case> cases;
    for (const QString& part : QString::fromUtf8(file.readAll()).split(u"\n====\n"_s)) {
        const QString lines = u'\n' + part + u'\n';
        const qsizetype divider = lines.indexOf(u"\n--\n"_s);
        if (divider < 0) {
            ADD_FAILURE() << "no line -- in: " << part.toStdString();
            return {};
        }
        cases += Case{lines.mid(1, divider - 1), lines.sliced(divider + 4).trimmed()};
    }
    return cases;
}

void Write(const QString& path, const QList<Case>& cases) {
    QStringList parts;
    for (const Case& one : cases) parts += one.text + u"\n--\n"_s + one.expected;
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write((parts.join(u"\n====\n"_s) + u'\n').toUtf8());
}

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

QString Word(Stage stage) {
    static const QStringList words = {u"lexer"_s, u"parser"_s, u"binder"_s, u"literal"_s, u"engine"_s};
    return words[static_cast<int>(stage)];
}

QString Shown(const BoundValue& value) {
    if (const auto* text = std::get_if<QByteArray>(&value)) return u'\'' + QString::fromUtf8(*text) + u'\'';
    if (const auto* number = std::get_if<double>(&value)) return QString::number(*number, 'g', 15);
    return QString::number(std::get<qint64>(value));
}

QString Shown(const Query& query) {
    QStringList lines = {QString::fromUtf8(SqlOf(*query.plan))};
    if (query.plan->kind == Plan::Kind::Select && !query.plan->output.isEmpty()) {
        QStringList columns;
        for (const OutputColumn& column : query.plan->output) {
            columns += column.name + u' ' + Word(column.type) +
                       (column.scale > 0 ? u'/' + QString::number(column.scale) : QString()) +
                       (column.field >= 0 ? u" #"_s + QString::number(column.field) : QString());
        }
        lines += (query.plan->table ? u"updatable: "_s : u"read only: "_s) + columns.join(u", ");
    }
    for (int i = 0; i < query.values.size(); ++i) {
        lines += u"?%1 %2 %3"_s.arg(QString::number(i + 1), Word(query.plan->targets[i]), Shown(query.values[i]));
    }
    return lines.join(u'\n');
}

QString TreeOf(const QString& text, Brackets brackets) {
    std::vector<Token> tokens;
    Lex(text, tokens);
    return Print(Parse(text, tokens), brackets);
}

class Golden : public testing::TestWithParam<std::string> {
protected:
    Golden() { values::SetUserLocale(QLocale(QLocale::English, QLocale::UnitedStates)); }

    QString Outcome(const QString& text) {
        try {
            if (GetParam() == "trees") return TreeOf(text, Brackets::All);
            const bool criteria = GetParam() == "criteria";
            const Table& products = *MainSchema().Find(u"Products");
            const Query query = criteria ? compiler_.CompileCriteria(text, products) : compiler_.Compile(text);
            EXPECT_EQ(store_.Refusal(*query.plan).toStdString(), "") << text.toStdString();
            return Shown(query);
        } catch (const QueryError& error) {
            return u"%1 in the %2: %3"_s.arg(QString::number(error.Number()), Word(error.GetStage()), error.Rendered());
        }
    }

    Compiler compiler_{MainSchema()};
    DialectStore store_{MainSchema()};
};

QString PathOf(const std::string& topic) {
    return QStringLiteral(TEST_DATA "/dialect/%1.txt").arg(QString::fromStdString(topic));
}

std::vector<std::string> Topics() {
    std::vector<std::string> topics;
    for (const QFileInfo& file : QDir(QStringLiteral(TEST_DATA "/dialect")).entryInfoList({u"*.txt"_s}, QDir::Files)) {
        if (file.baseName() != u"system_queries") topics.push_back(file.baseName().toStdString());
    }
    return topics;
}

}  // namespace

TEST_P(Golden, comes_out_as_written) {
    const QString path = PathOf(GetParam());
    QList<Case> cases = Read(path);
    ASSERT_FALSE(cases.isEmpty());
    const bool rewrite = qEnvironmentVariableIsSet("VELTON_REWRITE");
    for (Case& one : cases) {
        const QString outcome = Outcome(one.text);
        if (rewrite) one.expected = outcome;
        EXPECT_EQ(outcome.toStdString(), one.expected.toStdString()) << one.text.toStdString();
    }
    if (rewrite) Write(path, cases);
}

TEST_P(Golden, printed_and_read_again_is_the_same_tree) {
    if (GetParam() == "criteria") return;
    for (const Case& one : Read(PathOf(GetParam()))) {
        QString tree;
        try {
            tree = TreeOf(one.text, Brackets::All);
        } catch (const QueryError&) {
            continue;
        }
        const QString printed = TreeOf(one.text, Brackets::Needed);
        EXPECT_EQ(TreeOf(printed, Brackets::All).toStdString(), tree.toStdString()) << printed.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Dialect, Golden, testing::ValuesIn(Topics()), [](const auto& info) { return info.param; });
