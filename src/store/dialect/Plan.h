#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <memory>
#include <string>
#include <variant>

#include "store/Schema.h"
#include "store/StoreError.h"

namespace store::dialect {

// A literal of one query text, in order of appearance: literal i is parameter ?(i + 1) of every emitted piece.
struct Literal {
    enum class Kind { Text, Whole, Decimal, Date };
    Kind kind;
    QString text;  // a text without its quotes and with '' undoubled; a number as written; a date as mm-dd-yyyy
    Span span;
};

// What the emitted SQL wants a literal to become.
enum class Target { Text, Pattern, Whole, Scaled, Double, Date, Time, YesNo };

// One output column of a SELECT.
struct OutputColumn {
    QString name;  // alias, else the field's name as the schema writes it, else Expr1000, Expr1001...
    Type type = Type::Text;
    int scale = 0;   // decimals of an exact number: 4 for money and its like, 8 for a product of two of them
    int field = -1;  // position of the field in the table of an updatable cursor, else -1
};

// A compiled query text, shared by all texts of one shape (alike but for their literals).
//
// The pieces are the engine's own SQL (today SQLite's) with numbered parameters; the engine puts them together as it
// needs them:
//   SELECT columns FROM from [WHERE where] [GROUP BY group] [HAVING having] [ORDER BY order]
//   UPDATE table SET set [WHERE where]        DELETE FROM table [WHERE where]
// Names are quoted. A one-table SELECT without aggregate carries `table`, and its row identity is `table.rowid`.
struct Plan {
    enum class Kind { Select, Update, Delete };
    Kind kind = Kind::Select;
    std::string columns, from, where, group, having, order, set;
    QList<OutputColumn> output;
    QList<Target> targets;         // one a literal
    const Table* table = nullptr;  // the one table of an updatable cursor or an action; null for read-only cursors
    mutable std::shared_ptr<void> prepared;  // the engine's own statements for this shape, kept with it
};

// What a literal is bound as.
using BoundValue = std::variant<std::monostate, qint64, double, QByteArray>;

// One query text, ready to run.
struct Query {
    std::shared_ptr<const Plan> plan;
    QList<BoundValue> values;  // one a literal
};

// Turns query texts into queries against one schema; keeps the plans by shape, so that the second lookup of a shape
// costs a lex and a bind, not a parse. Throws QueryError.
class Compiler {
public:
    explicit Compiler(const Schema& schema);
    ~Compiler();
    Compiler(Compiler&&) noexcept;

    Query Compile(const QString& text);
    // A criteria text such as "UserName = 'ana'" over one table: the plan has no columns, only that table and `where`.
    Query CompileCriteria(const QString& text, const Table& table);

private:
    struct Cache;
    const Schema* schema_;
    std::unique_ptr<Cache> cache_;
};

}  // namespace store::dialect
