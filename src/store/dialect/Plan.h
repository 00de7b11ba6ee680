#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <functional>
#include <memory>
#include <variant>

#include "store/dialect/Bound.h"

namespace store::dialect {

// A compiled query text: the statement as it was bound, shared by all texts of one shape (alike but for their
// literals).
struct Plan : BoundStatement {
    QList<Target> targets;         // one a literal
    const Table* table = nullptr;  // the one table of an updatable cursor or an action; null for read-only cursors
    mutable std::shared_ptr<void> prepared;  // what the engine made of it, kept with it
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
    // Called once with every new plan, and the text it came from, before it is kept; what it throws refuses the text.
    using Prepare = std::function<void(const Plan& plan, const QString& text)>;

    explicit Compiler(const Schema& schema, Prepare prepare = {});
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
