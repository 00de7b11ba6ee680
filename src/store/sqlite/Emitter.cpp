#include "store/sqlite/Emitter.h"

#include <algorithm>

#include "store/SqlText.h"
#include "store/Words.h"
#include "store/dialect/Complaint.h"
#include "store/sqlite/ExprEmitter.h"

namespace store::sqlite {

using dialect::BoundAssignment;
using dialect::BoundPtr;
using dialect::BoundSorting;
using dialect::BoundSource;

namespace {

// The parser has a fixed stack; so many brackets may stand one within the other.
constexpr int MostBrackets = 12;

class Emitter {
public:
    explicit Emitter(const dialect::Plan& plan) : statement_(plan) {}

    Pieces Whole() {
        const Table* table = statement_.table;
        pieces_.from = table ? Quoted(table->name) : From(*statement_.from);
        for (const BoundPtr& column : statement_.columns) AppendTo(pieces_.columns, exprs_.Value(*column));
        for (const BoundAssignment& assignment : statement_.set) {
            const QString& column = table->columns[assignment.column].name;
            AppendTo(pieces_.set, Quoted(column) + " = " + exprs_.Value(*assignment.value));
        }
        if (statement_.where) pieces_.where = exprs_.Condition(*statement_.where);
        for (const BoundPtr& expr : statement_.group) AppendTo(pieces_.group, exprs_.Key(*expr));
        if (statement_.having) pieces_.having = exprs_.Condition(*statement_.having);
        for (const BoundSorting& sorting : statement_.order) {
            AppendTo(pieces_.order, exprs_.Key(*sorting.expr) + (sorting.descending ? " DESC" : ""));
        }
        return std::move(pieces_);
    }

private:
    static bool IsTable(const BoundSource& source) { return !source.first; }
    static bool IsInner(const BoundSource& source) {
        return IsTable(source) || (!source.left && IsInner(*source.first) && IsInner(*source.second));
    }

    std::string From(const BoundSource& source) {
        if (IsTable(source)) {
            const BoundTable& table = statement_.tables[static_cast<size_t>(source.table)];
            const std::string name = Quoted(table.table->name);
            const std::string called = Quoted(table.name);
            return statement_.tables.size() == 1 || name == called ? name : name + " AS " + called;
        }
        if (!source.left && IsInner(source)) return InnerTables(source) + " ON " + InnerConditions(source);

        const std::string second = From(*source.second);
        return From(*source.first) + (source.left ? " LEFT JOIN " : " INNER JOIN ") +
               (IsTable(*source.second) ? second : '(' + second + ')') + " ON " + exprs_.Condition(*source.on);
    }

    // Inner joins within inner joins are written flat, since the engine orders tables better without brackets.
    std::string InnerTables(const BoundSource& source) {
        if (IsTable(source)) return From(source);
        return InnerTables(*source.first) + " INNER JOIN " + InnerTables(*source.second);
    }

    std::string InnerConditions(const BoundSource& source) {
        std::string conditions;
        for (const auto& part : {source.first, source.second}) {
            if (!IsTable(*part)) conditions += InnerConditions(*part) + " AND ";
        }
        return conditions + '(' + exprs_.Condition(*source.on) + ')';
    }

    const dialect::Plan& statement_;
    Pieces pieces_;
    ExprEmitter exprs_{statement_.tables};
};

int DeepestBrackets(const std::string& sql) {
    int depth = 0, deepest = 0;
    bool quoted = false;
    for (const char c : sql) {
        if (c == '"') quoted = !quoted;
        if (quoted) continue;
        if (c == '(') deepest = std::max(deepest, ++depth);
        if (c == ')') --depth;
    }
    return deepest;
}

}  // namespace

Pieces Emit(const dialect::Plan& plan, const QString& text) {
    Pieces pieces = Emitter(plan).Whole();
    for (const std::string* piece :
         {&pieces.columns, &pieces.from, &pieces.where, &pieces.group, &pieces.having, &pieces.order, &pieces.set}) {
        if (DeepestBrackets(*piece) <= MostBrackets) continue;
        dialect::Complaint{text}(SyntaxError, {0, static_cast<int>(text.size())},
                                 Words::tr("The query text is nested too deeply."));
    }
    return pieces;
}

}  // namespace store::sqlite
