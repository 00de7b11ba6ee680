#include "store/DialectTexts.h"
#include "store/StoreTestBase.h"
#include "support/Server.h"
#include "support/ValueOf.h"

namespace store::test {

// Makes up queries that mean something: of every kind of expression, over one table or two, with groups or without.
class QueryMaker {
public:
    QString Next() {
        table_ = Any({u"Products"_s, u"Invoices"_s, u"SalesDetails"_s, u"Sales"_s, u"Tax"_s});
        const QString tail = Below(2) == 0 ? QString() : u" WHERE "_s + Condition(3);
        switch (Below(4)) {
            case 0: {
                const QString group = Column(Type::Text);
                return u"SELECT %1, Sum(%2) AS s, Max(%3), Min(%4), Count(*) FROM %5%6 GROUP BY %1 HAVING %7"_s.arg(
                    group, Number(1), Number(1), Column(Type::Date), table_, tail,
                    Any({u"Count(*) > 1"_s, u"Sum("_s + Number(0) + u") > 1"_s, u"Max("_s + Text(0) + u") > 'b'"_s}));
            }
            case 1:
                return u"SELECT %1 AS a, %2 AS b, %3 FROM %4%5"_s.arg(Number(2), Text(2), Column(Type::YesNo), table_,
                                                                      tail);
            case 2:
                return u"SELECT * FROM %1%2 ORDER BY %3%4"_s.arg(
                    table_, tail, Any({Number(1) + u" + 0"_s, Text(1), Column(Type::Date)}),
                    Any({u""_s, u", "_s + Column(Type::Text) + u" DESC"_s}));
            default:
                return u"SELECT SalesDetails.*, Invoices.CashAmount FROM Invoices %1 JOIN SalesDetails ON "
                       u"Invoices.InvoiceID = SalesDetails.InvoiceID WHERE Amount * QtySold > %2"_s.arg(
                           Any({u"INNER"_s, u"LEFT"_s}), Literal());
        }
    }

private:
    int Below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random_); }
    QString Any(const QStringList& list) { return list[Below(static_cast<int>(list.size()))]; }

    QString Column(Type type) {
        QStringList fitting;
        for (const store::Column& column : MainSchema().Find(table_)->columns)
            if (!column.selfNumbering && (column.type == type || (type == Type::Money && IsScaled(column.type))))
                fitting += column.name;
        return fitting.isEmpty() ? u"Null"_s : Any(fitting);
    }
    QString Literal() { return Any({u"0"_s, u"1"_s, u"2.5"_s, u"17"_s, u"0.00005"_s, u"'4'"_s, u"100"_s}); }
    QString Number(int depth) {
        switch (depth == 0 ? Below(3) : Below(6)) {
            case 0:
                return Column(Type::Whole);
            case 1:
                return Column(Type::Money);
            case 2:
                return u"Val("_s + Column(Type::Text) + u')';
            case 3:
                return u"(-"_s + Number(depth - 1) + u')';
            case 4:
                return u"Val("_s + Text(depth - 1) + u')';
            default:
                return u'(' + Number(depth - 1) + Any({u" + "_s, u" - "_s, u" * "_s, u" / "_s}) + Number(depth - 1) +
                       u')';
        }
    }
    QString Text(int depth) {
        switch (depth == 0 ? 0 : Below(4)) {
            case 0:
                return Column(Type::Text);
            case 1:
                return Any({u"'x'"_s, u"'ČAJ'"_s, u"''"_s, u"'12a'"_s});
            case 2:
                return u'(' + Text(depth - 1) + u" & "_s + Any({Text(depth - 1), Column(Type::Whole)}) + u')';
            default:
                return u'(' + Text(depth - 1) + u" + "_s + Text(depth - 1) + u')';
        }
    }
    QString Condition(int depth) {
        const QString compares = Any({u" = "_s, u" <> "_s, u" < "_s, u" >= "_s});
        switch (depth == 0 ? Below(6) : Below(10)) {
            case 0:
                return Number(1) + compares + Number(1);
            case 1:
                return Text(1) + compares + Text(1);
            case 2:
                return Text(0) + Any({u" LIKE "_s, u" NOT LIKE "_s}) +
                       Any({u"'*a*'"_s, u"'[a-k]*'"_s, u"'?'"_s, u"'#*'"_s, u"'[!0-9]*'"_s, u"'*%*'"_s, u"'*[b]*'"_s,
                            Text(0)});
            case 3:
                return Number(0) + Any({u" BETWEEN -1 AND "_s, u" NOT BETWEEN 0 AND "_s}) + Number(0);
            case 4:
                return Text(0) + Any({u" IN ('X', 'kg', 'Žito')"_s, u" NOT IN ('7', "_s + Text(0) + u')'});
            case 5:
                return Any({Text(1), Number(1)}) + Any({u" IS NULL"_s, u" IS NOT NULL"_s});
            case 6:
                return u"NOT "_s + Condition(depth - 1);
            case 7:
                return Column(Type::Date) + compares + Any({u"#03-24-2024#"_s, u"'3/22/2024'"_s});
            default:
                return u'(' + Condition(depth - 1) + Any({u" AND "_s, u" OR "_s}) + Condition(depth - 1) + u')';
        }
    }

    QString table_;
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

    // Texts that differ in nothing but case are left out where it is open which of them a group shows.
    void Fill(Database& database) {
        std::mt19937 random(20'240'325);
        const auto below = [&random](size_t bound) { return random() % bound; };
        const QStringList texts = {u"7"_s,      u"007"_s, u" 9"_s, u"12A"_s, u"-3.5e2"_s, u"x"_s,       u"čaj"_s,
                                   u"žito"_s,   u"kg"_s,  u"P"_s,  u"N"_s,   u"100"_s,    u"a%b_c\\"_s, u"[b]-c"_s,
                                   u"Straße"_s, u"Ыъ"_s,  u""_s,   u"😀"_s,   u"1."_s,     u".5"_s};
        const QStringList numbers = {u"0"_s, u"1"_s, u"-1"_s, u"2"_s, u"4"_s, u"12"_s, u"17"_s};
        const QStringList exact = {u"0"_s, u"1"_s, u"-2.5"_s, u"0.0001"_s, u"3.335"_s, u"12345.6789"_s, u"-17"_s};
        Database::Batch batch(database);
        for (const Table& table : database.GetSchema().tables) {
            auto rows = database.OpenRecordset(u"SELECT * FROM [%1]"_s.arg(table.name));
            for (int i = 0; i < 24; ++i) {
                rows.AddNew();
                for (const Column& column : table.columns) {
                    if (column.selfNumbering || below(6) == 0) continue;
                    if (IsKey(table, column)) {
                        rows[column.name] = QString::number(i);
                        continue;
                    }
                    switch (column.type) {
                        case Type::Text:
                            rows[column.name] = texts[static_cast<qsizetype>(below(20))];
                            break;
                        case Type::Whole:
                            rows[column.name] = numbers[static_cast<qsizetype>(below(7))];
                            break;
                        case Type::Date:
                            rows[column.name] = QDate(2024, 3, 20).addDays(static_cast<int>(below(9)));
                            break;
                        case Type::Time:
                            rows[column.name] = QTime(static_cast<int>(below(24)), 5);
                            break;
                        case Type::YesNo:
                            rows[column.name] = below(2) == 0;
                            break;
                        default:
                            rows[column.name] = exact[static_cast<qsizetype>(below(7))];
                    }
                }
                rows.Update();
            }
        }
        batch.Commit();
    }

    static bool IsKey(const Table& table, const Column& column) {
        return std::ranges::any_of(table.indexes, [&column](const Index& index) {
            return index.unique && index.columns.contains(column.name);
        });
    }

    static QString RowsOf(Database& database, const QString& text) {
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
            if (text.trimmed().startsWith(u"select"_s, Qt::CaseInsensitive)) return RowsOf(database, text);
            const Database::Batch undone(database);
            QString told = QString::number(database.Execute(text)) + u" rows\n"_s;
            for (const Table& table : database.GetSchema().tables)
                if (text.contains(table.name, Qt::CaseInsensitive))
                    told += RowsOf(database, u"SELECT * FROM [%1]"_s.arg(table.name));
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
    for (const QString& text : mutator.Corpus()) ExpectTheSame(text);
    for (int i = 0; i < 3000; ++i) ExpectTheSame(mutator.Next());
}

TEST_F(EnginesTest, AnswerMadeUpTextsAlike) {
    QueryMaker maker;
    for (int i = 0; i < 3000; ++i) ExpectTheSame(maker.Next());
    EXPECT_GT(answered_, 1500);
}

}  // namespace store::test
