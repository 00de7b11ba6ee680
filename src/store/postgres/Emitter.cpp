#include "store/postgres/Emitter.h"

#include <algorithm>

#include "store/SqlText.h"

using namespace Qt::StringLiterals;

namespace store::postgres {

using dialect::Aliased;
using dialect::BoundAssignment;
using dialect::BoundSorting;
using dialect::BoundSource;
using dialect::Op;
using dialect::Plan;
using Form = BoundExpr::Form;

namespace {

std::string Clause(const char* keyword, const std::string& text) {
    return text.empty() ? text : keyword + text;
}

bool HasIndexOver(const Table& table, const QString& column, bool overVal) {
    return std::ranges::any_of(
        table.indexes, [&](const Index& index) { return index.columns.front() == column && index.overVal == overVal; });
}

bool NamesColumns(const BoundExpr& expr) {
    return expr.form == Form::Column ||
           std::ranges::any_of(expr.args, [](const BoundPtr& arg) { return NamesColumns(*arg); });
}

class Emitter {
public:
    explicit Emitter(const Plan& plan) : plan_(plan) {}

    ServerQuery Whole() {
        switch (plan_.kind) {
            case Plan::Kind::Select:
                plan_.columns.empty() ? Find() : Select();
                break;
            case Plan::Kind::Update:
                Update();
                break;
            case Plan::Kind::Delete:
                query_.whole = "DELETE FROM " + TableSql(0) + Where();
                break;
        }
        query_.slots = exprs_.Slots();
        return std::move(query_);
    }

private:
    std::string TableSql(size_t position) const { return Quoted(plan_.tables[position].table->name); }
    std::string KeySql(size_t position) const {
        const BoundTable& table = plan_.tables[position];
        const std::string key = Quoted(KeyColumn(*table.table));
        return plan_.tables.size() == 1 ? key : Quoted(table.name) + '.' + key;
    }
    std::string Where() { return Clause(" WHERE ", plan_.where ? exprs_.Condition(*plan_.where) : std::string()); }

    void Find() { query_.whole = "SELECT " + KeySql(0) + " FROM " + TableSql(0) + Where() + " ORDER BY " + KeySql(0); }

    void Update() {
        std::string set;
        for (const BoundAssignment& assignment : plan_.set) {
            const Column& column = plan_.table->columns[assignment.column];
            AppendTo(set, Quoted(column.name) + " = " + exprs_.Value(*assignment.value, column.type));
        }
        query_.whole = "UPDATE " + TableSql(0) + " SET " + set;
        query_.whole += Where();
    }

    void Select() {
        if (plan_.aggregate) exprs_.SetGroups(&plan_.group);
        std::string columns = plan_.table ? KeySql(0) : std::string();
        for (const BoundPtr& column : plan_.columns) AppendTo(columns, exprs_.Value(*column, Type::Text));
        query_.columnSlots = exprs_.Slots().size();
        const std::string head = "SELECT " + columns + " FROM ";
        if (plan_.table) WriteRowStatements(head);

        exprs_.SetGroups(nullptr);
        query_.whole = head + From(*plan_.from);
        query_.whole += Where();
        std::string groups;
        for (const BoundPtr& group : plan_.group) AppendTo(groups, exprs_.Key(*group));
        query_.whole += Clause(" GROUP BY ", groups);
        if (plan_.aggregate) exprs_.SetGroups(&plan_.group);
        if (plan_.having) query_.whole += " HAVING " + exprs_.Condition(*plan_.having);
        query_.whole += Clause(" ORDER BY ", Order());
    }

    void WriteRowStatements(const std::string& head) {
        const std::string from = TableSql(0) + " WHERE " + KeySql(0);
        const auto parameter = [this](size_t behind) {
            return '$' + std::to_string(query_.columnSlots + behind) + "::bigint";
        };
        query_.some = head + from + " = ANY(" + parameter(1) + "[])";
        query_.after = head + from + " > " + parameter(1) + " AND " + KeySql(0) + " <= " + parameter(2) + " ORDER BY " +
                       KeySql(0) + " LIMIT " + parameter(3);
    }

    std::string From(const BoundSource& source) {
        if (!source.first) {
            const auto position = static_cast<size_t>(source.table);
            const std::string called = Quoted(plan_.tables[position].name);
            const std::string name = TableSql(position);
            return plan_.tables.size() == 1 || name == called ? name : name + " AS " + called;
        }
        return '(' + From(*source.first) + (source.left ? " LEFT JOIN " : " INNER JOIN ") + From(*source.second) +
               " ON " + exprs_.Condition(*source.on) + ')';
    }

    // Nulls come first, as in the file.
    std::string Order() {
        std::string order;
        for (const BoundSorting& sorting : plan_.order)
            AppendTo(order, exprs_.Key(*sorting.expr) + (sorting.descending ? " DESC NULLS LAST" : " NULLS FIRST"));
        if (plan_.aggregate) {
            for (const BoundPtr& group : plan_.group) AppendTo(order, exprs_.Key(*group) + " NULLS FIRST");
            return order;
        }
        const Walk walk = plan_.table ? WalkOfTheFile() : Walk::OverTable;
        if (walk == Walk::OverStretch) AppendTo(order, exprs_.Key(*stretch_) + " NULLS FIRST");
        for (size_t i = 0; i < plan_.tables.size(); ++i)
            AppendTo(order, KeySql(i) + (walk == Walk::Backwards ? " DESC" : ""));
        return order;
    }

    // How the file goes over its rows, which decides about those that are equal: by identity, but for an index of which
    // a condition asks for a stretch or some values, or which is followed backwards.
    enum class Walk { OverTable, OverStretch, Backwards };

    Walk WalkOfTheFile() {
        std::vector<const BoundExpr*> conditions;
        if (plan_.where) AddConditions(*plan_.where, conditions);
        for (const BoundExpr* condition : conditions) {
            for (size_t side = 0; side < 2 && side < condition->args.size(); ++side) {
                const BoundExpr* term = Indexed(*condition, side);
                if (term == nullptr) continue;
                if (condition->op == Op::Equal && condition->form == Form::Binary) return Walk::OverTable;
                if (stretch_ == nullptr) stretch_ = term;
            }
        }
        if (stretch_ != nullptr) return Walk::OverStretch;
        const bool isBackwards = plan_.order.size() == 1 && plan_.order.front().descending;
        return isBackwards && Indexed(*plan_.order.front().expr) ? Walk::Backwards : Walk::OverTable;
    }

    static void AddConditions(const BoundExpr& where, std::vector<const BoundExpr*>& conditions) {
        if (where.form == Form::Binary && where.op == Op::And)
            for (const BoundPtr& arg : where.args) AddConditions(*arg, conditions);
        else
            conditions.push_back(&where);
    }

    // One side of a comparison, when an index stands over it and the others are known beforehand.
    const BoundExpr* Indexed(const BoundExpr& condition, size_t side) const {
        const bool compares = condition.form == Form::Binary && dialect::IsCondition(condition) &&
                              condition.op != Op::NotEqual && condition.op != Op::Or && condition.op != Op::And;
        const bool lists = (condition.form == Form::Between || condition.form == Form::In) && !condition.negated;
        if (!compares && !(lists && side == 0)) return nullptr;
        for (size_t i = 0; i < condition.args.size(); ++i)
            if (i != side && NamesColumns(*condition.args[i])) return nullptr;

        return Indexed(*condition.args[side]);
    }

    const BoundExpr* Indexed(const BoundExpr& expr) const {
        const BoundExpr& term = Aliased(expr);
        const bool overVal = term.form == Form::Val && term.args.front()->form == Form::Column;
        if (!overVal && term.form != Form::Column) return nullptr;
        const BoundExpr& column = overVal ? *term.args.front() : term;
        return HasIndexOver(*plan_.table, plan_.table->columns[column.column].name, overVal) ? &term : nullptr;
    }

    const Plan& plan_;
    const BoundExpr* stretch_ = nullptr;
    ServerQuery query_;
    ExprEmitter exprs_{plan_.tables};
};

}  // namespace

QString KeyColumn(const Table& table) {
    const auto numbering = std::ranges::find_if(table.columns, &Column::selfNumbering);
    return numbering == table.columns.end() ? u"RowKey"_s : numbering->name;
}

ServerQuery Emit(const Plan& plan) {
    return Emitter(plan).Whole();
}

}  // namespace store::postgres
