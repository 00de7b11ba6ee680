#include "store/dialect/Emitter.h"

#include <algorithm>

#include "store/dialect/Complaint.h"
#include "store/dialect/ExprEmitter.h"
#include "store/dialect/Limits.h"

using namespace Qt::StringLiterals;

namespace store::dialect {

namespace {

class Emitter {
public:
    Emitter(const BoundStatement& statement, int literals) : statement_(statement) {
        plan_.targets.resize(literals, Target::Text);
    }

    Plan Whole() {
        plan_.kind = statement_.kind;
        if (statement_.tables.size() == 1 && !statement_.aggregate) plan_.table = statement_.tables.front().table;
        if (plan_.table)
            plan_.from = QuotedName(plan_.table->name);
        else
            plan_.from = From(*statement_.from);

        for (const BoundColumn& column : statement_.columns) {
            Add(plan_.columns, exprs_.Value(*column.expr));
            plan_.output += column.output;
        }
        for (const BoundAssignment& assignment : statement_.set) {
            const Column& column = plan_.table->columns[assignment.column];
            Add(plan_.set, QuotedName(column.name) + " = " + exprs_.Value(*assignment.value));
        }
        if (statement_.where) plan_.where = exprs_.Condition(*statement_.where);
        for (const BoundPtr& expr : statement_.group) Add(plan_.group, exprs_.Key(*expr));
        if (statement_.having) plan_.having = exprs_.Condition(*statement_.having);
        for (const BoundSorting& sorting : statement_.order) {
            Add(plan_.order, exprs_.Key(*sorting.expr) + (sorting.descending ? " DESC" : ""));
        }
        return std::move(plan_);
    }

private:
    static void Add(std::string& list, const std::string& piece) {
        if (!list.empty()) list += ", ";
        list += piece;
    }

    static bool IsTable(const BoundSource& source) { return !source.first; }
    static bool IsInner(const BoundSource& source) {
        return IsTable(source) || (!source.left && IsInner(*source.first) && IsInner(*source.second));
    }

    std::string From(const BoundSource& source) {
        if (IsTable(source)) {
            const BoundTable& table = statement_.tables[static_cast<size_t>(source.table)];
            const std::string name = QuotedName(table.table->name);
            const std::string called = QuotedName(table.name);
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

    const BoundStatement& statement_;
    Plan plan_;
    ExprEmitter exprs_{statement_.tables, plan_.targets};
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

Plan Emit(const BoundStatement& statement, int literals, const QString& text) {
    Plan plan = Emitter(statement, literals).Whole();
    for (const std::string* piece :
         {&plan.columns, &plan.from, &plan.where, &plan.group, &plan.having, &plan.order, &plan.set}) {
        if (DeepestBrackets(*piece) <= MaxEmittedBrackets) continue;
        Complaint(Stage::Binder, text)(SyntaxError, {0, static_cast<int>(text.size())},
                                       u"The query text is nested too deeply."_s);
    }
    return plan;
}

}  // namespace store::dialect
