#include <QRegularExpression>

#include "store/DialectFuzz.h"
#include "store/DialectTexts.h"
#include "store/StoreTestBase.h"
#include "support/Server.h"
#include "support/ValueOf.h"

namespace store::test {

// A word of the grammar for columns of a type; all amounts are one.
QString Kind(Type type) {
    const QMap<Type, QString> kinds{{Type::Text, u"Text"_s},
                                    {Type::Whole, u"Whole"_s},
                                    {Type::Date, u"Date"_s},
                                    {Type::Time, u"Time"_s},
                                    {Type::YesNo, u"YesNo"_s}};
    return kinds.value(type, u"Money"_s);
}

// Makes up texts by the grammar in tests/data/dialect/queries.grammar.
class TextMaker {
public:
    TextMaker() {
        QString grammar = ContentsOf(DialectFolder + u"queries.grammar"_s);
        grammar.remove(QRegularExpression(u"^# .*\n"_s, QRegularExpression::MultilineOption));
        for (const QString& lines : grammar.split(u"\n\n"_s)) {
            QStringList choices = lines.split(u'\n', Qt::SkipEmptyParts);
            const QString name = choices.takeFirst();
            choices_[name] = choices;
        }
    }

    QString NextQuery() {
        const Table& table = *MainSchema().Find(Next(u"Tables"_s));
        for (const auto& kind : {u"Text"_s, u"Whole"_s, u"Money"_s, u"Date"_s, u"YesNo"_s}) {
            QStringList names;
            for (const Column& column : table.columns)
                if (!column.selfNumbering && Kind(column.type) == kind) names += column.name;
            choices_[kind + u" column"_s] = names.isEmpty() ? QStringList{u"Null"_s} : names;
        }
        choices_[u"Table"_s] = {table.name};
        choices_[u"Group"_s] = {Next(u"Text column"_s)};
        return Next(u"Query"_s);
    }
    QString Next(const QString& name, int steps = 0) {
        static const QRegularExpression inner(u"<([A-Z][A-Za-z]*( column)?)( \\d)?>"_s);
        QStringList choices = choices_[name];
        if (steps == 0) choices.removeIf([](const QString& choice) { return choice.startsWith(u"+ "); });
        QString text = choices[Below(static_cast<int>(choices.size()))];
        if (text == u"~") return {};
        if (text.startsWith(u"+ ")) {
            text.remove(0, 2);
            --steps;
        }
        for (auto match = inner.match(text); match.hasMatch(); match = inner.match(text)) {
            const QString made = Next(match.captured(1), match.hasCaptured(3) ? match.captured(3).toInt() : steps);
            text.replace(match.capturedStart(), match.capturedLength(), made);
        }
        return text;
    }
    int Below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random_); }

private:
    QMap<QString, QStringList> choices_;
    std::mt19937 random_{20'261'125};
};

// The same query texts on both engines, over rows that a shop would rather not have: every row, its order, and every
// error is the same.
class EnginesTest : public testing::Test {
protected:
    EnginesTest() {
        values::SetUserLocale(QLocale(u"en_US"_s));
        for (Database* database : {file.get(), server.get()}) Fill(*database);
    }

    static void Fill(Database& database) {
        TextMaker maker;
        Database::Batch batch(database);
        for (const Table& table : database.GetSchema().tables) {
            QStringList rows;
            for (int i = 0; i < 24; ++i) {
                QStringList fields;
                for (const Column& column : table.columns) {
                    if (column.selfNumbering || maker.Below(6) == 0) continue;
                    const QString value =
                        IsKey(table, column) ? QString::number(i) : maker.Next(Kind(column.type) + u" value"_s);
                    fields += column.name + u'=' + value;
                }
                rows += fields.join(u" | ");
            }
            AddRows(database, table.name, rows);
        }
        batch.Commit();
    }

    static bool IsKey(const Table& table, const Column& column) {
        return std::ranges::any_of(table.indexes, [&column](const Index& index) {
            return index.unique && index.columns.contains(column.name);
        });
    }

    static QString ToldRows(Database& database, const QString& text) {
        auto rows = database.OpenSnapshot(text);
        QString told;
        for (auto& row : rows) {
            for (int i = 0; i < row.FieldCount(); ++i) told += drivers::Told(row[i].Get()) + u'|';
            told += u'\n';
        }
        return told;
    }

    // Rows, or how many an action touched and what the table is afterwards.
    static QString Outcome(Database& database, const QString& text) {
        try {
            if (text.trimmed().startsWith(u"select"_s, Qt::CaseInsensitive)) return ToldRows(database, text);
            const Database::Batch undone(database);
            QString told = QString::number(database.Execute(text)) + u" rows\n"_s;
            for (const Table& table : database.GetSchema().tables)
                if (text.contains(table.name, Qt::CaseInsensitive))
                    told += ToldRows(database, u"SELECT * FROM [%1]"_s.arg(table.name));
            return told;
        } catch (const values::Error& error) {
            return u"error %1"_s.arg(error.Number());
        }
    }

    void ExpectTheSame(const QString& text) {
        QStringList given = Outcome(*server, text).split(u'\n'), wanted = Outcome(*file, text).split(u'\n');
        answered_ += wanted.size() > 2 ? 1 : 0;
        // The order of a join is open.
        if (text.contains(u" JOIN "_s, Qt::CaseInsensitive))
            for (QStringList* lines : {&given, &wanted}) lines->sort();
        if (given == wanted) return;
        const auto [there, here] = std::ranges::mismatch(given, wanted);
        ADD_FAILURE() << text.toStdString() << "\nserver, " << given.size()
                      << " lines: " << given.value(there - given.begin()).toStdString() << "\nfile, " << wanted.size()
                      << " lines: " << wanted.value(here - wanted.begin()).toStdString();
    }

    int answered_ = 0;  // with rows
    QTemporaryDir folder_{FolderTemplate()};
    std::unique_ptr<Database> file = Database::Create(folder_.filePath(u"ORVA.pos"_s), MainSchema());
    std::unique_ptr<Database> server =
        Database::Create(Place::Server(drivers::Server::Running().NewShop()), MainSchema());
};

TEST_F(EnginesTest, AnswerEveryTextAlike) {
    for (const QFileInfo& topic : QDir(DialectFolder).entryInfoList({u"*.txt"_s}, QDir::Files)) {
        const bool areCases = topic.baseName() != u"system_queries";
        for (const QString& one : ContentsOf(topic.filePath()).split(areCases ? u"\n====\n"_s : u"\n"_s)) {
            const QString text = areCases ? (u'\n' + one).section(u"\n--\n"_s, 0, 0).mid(1) : one;
            if (text.isEmpty() || text.startsWith(u'#') || topic.baseName() == u"criteria") continue;
            ExpectTheSame(text);
        }
    }
    EXPECT_GT(answered_, 100);
}

TEST_F(EnginesTest, AnswerCarelesslyJoinedTextsAlike) {
    Mutator mutator;
    ASSERT_GT(mutator.Corpus().size(), 20);
    QStringList texts = mutator.Corpus();
    for (int i = 0; i < 6000; ++i) texts += mutator.Next();
    for (const QString& text : texts) {
        ExpectTheSame(text);
        EXPECT_EQ(DialectFaultOn(text).toStdString(), "") << text.toStdString();
    }
}

TEST_F(EnginesTest, AnswerMadeUpTextsAlike) {
    TextMaker maker;
    for (int i = 0; i < 3000; ++i) ExpectTheSame(maker.NextQuery());
    RecordProperty("answered", answered_);
    EXPECT_GT(answered_, 1500);
}

// A server keeps 2000 statements ready, and is told to forget them behind that.
TEST_F(EnginesTest, ABatchGoesOnBehindRefusalsOfManyShapes) {
    Database::Batch batch(*server);
    server->Execute(u"UPDATE Company SET Tel = 'kept'"_s);
    for (int shape = 0; shape < 2100; ++shape) {
        QString text = u"UPDATE Tax SET TaxID = 'same' WHERE Percent IS NOT NULL"_s;
        for (int bit = 0; bit < 12; ++bit) text += (shape >> bit & 1) != 0 ? u" OR Del = True"_s : u" OR Del = False"_s;
        ASSERT_EQ(ErrorOf([&] { server->Execute(text); }), DuplicateKey) << shape;
    }
    batch.Commit();
    EXPECT_EQ(RowsOf(*server, u"SELECT Tel FROM Company WHERE Tel <> 'kept'"_s), QStringList());
}

}  // namespace store::test
