#include "store/postgres/FileOrder.h"

#include <algorithm>

namespace store::postgres {

using dialect::BoundExpr;
using dialect::BoundPtr;
using dialect::Op;
using dialect::Plan;
using Form = BoundExpr::Form;

namespace {

void AddColumns(const BoundExpr& expr, std::vector<const BoundExpr*>& columns) {
    if (expr.form == Form::Column) columns.push_back(&expr);
    for (const BoundPtr& arg : expr.args) AddColumns(*arg, columns);
}

bool IsKnown(const BoundExpr& expr) {
    std::vector<const BoundExpr*> columns;
    AddColumns(expr, columns);
    return columns.empty();
}

void AddConditions(const BoundExpr& where, std::vector<const BoundExpr*>& conditions) {
    if (where.form == Form::Binary && where.op == Op::And)
        for (const BoundPtr& arg : where.args) AddConditions(*arg, conditions);
    else
        conditions.push_back(&where);
}

// The stretch of an index that conditions ask for.
struct Stretch {
    const BoundExpr* over = nullptr;
    int ends = 0;
    bool isOneValue = false;
};

class Walk {
public:
    explicit Walk(const Plan& plan) : plan_(plan) {}

    // It follows an index by which it finds the rows; else one that has the order asked for; else one that holds all
    // that is asked for.
    FileOrder Order() const {
        const Stretch stretch = FindStretch();
        if (stretch.isOneValue) return {};
        if (stretch.ends > 1) return {.first = stretch.over};
        if (!plan_.order.empty() && Indexed(*plan_.order.front().expr) != nullptr) {
            const bool isBackwards = plan_.order.size() == 1 && plan_.order.front().descending;
            if (stretch.over == nullptr || !isBackwards) return {.isBackwards = isBackwards};
        }
        if (stretch.over != nullptr) return {.first = stretch.over};
        return {.first = plan_.order.empty() ? Covered() : nullptr};
    }

private:
    Stretch FindStretch() const {
        std::vector<const BoundExpr*> conditions;
        if (plan_.where) AddConditions(*plan_.where, conditions);
        Stretch found;
        for (const BoundExpr* condition : conditions) {
            const Stretch one = StretchOf(*condition);
            if (one.isOneValue) return one;
            if (one.over == nullptr) continue;
            if (found.over == nullptr) found.over = one.over;
            if (Same(*found.over, *one.over)) found.ends += one.ends;
        }
        return found;
    }

    Stretch StretchOf(const BoundExpr& condition) const {
        const auto known = [&condition](size_t position) { return IsKnown(*condition.args[position]) ? 1 : 0; };
        switch (condition.form) {
            case Form::Between:
                if (condition.negated || known(1) + known(2) == 0) return {};
                return {.over = Indexed(*condition.args[0]), .ends = known(1) + known(2)};
            case Form::In: {
                for (size_t i = 1; i < condition.args.size(); ++i)
                    if (known(i) == 0) return {};
                return condition.negated ? Stretch() : Stretch{.over = Indexed(*condition.args[0]), .ends = 2};
            }
            case Form::Binary:
                return ComparedStretch(condition);
            default:
                return {};
        }
    }

    Stretch ComparedStretch(const BoundExpr& condition) const {
        const bool compares = IsCondition(condition) && condition.op != Op::NotEqual && condition.op != Op::Or;
        for (size_t side = 0; compares && side < 2; ++side) {
            const BoundExpr* over = Indexed(*condition.args[side]);
            if (over == nullptr || !IsKnown(*condition.args[1 - side])) continue;
            return {.over = over, .ends = 1, .isOneValue = condition.op == Op::Equal};
        }
        return {};
    }

    // The one column that is asked for, when an index holds it, as each holds the identity.
    const BoundExpr* Covered() const {
        std::vector<const BoundExpr*> columns;
        for (const BoundPtr& column : plan_.columns) AddColumns(*column, columns);
        if (plan_.where) AddColumns(*plan_.where, columns);
        std::erase_if(columns,
                      [this](const BoundExpr* one) { return plan_.table->columns[one->column].selfNumbering; });
        const auto isFirst = [&columns](const BoundExpr* one) { return one->column == columns.front()->column; };
        if (columns.empty() || !std::ranges::all_of(columns, isFirst)) return nullptr;
        return Indexed(*columns.front());
    }

    // A column, or Val of one, over which there is an index.
    const BoundExpr* Indexed(const BoundExpr& expr) const {
        const BoundExpr& term = Aliased(expr);
        const bool overVal = term.form == Form::Val && term.args.front()->form == Form::Column;
        if (!overVal && term.form != Form::Column) return nullptr;
        const QString& column = plan_.table->columns[(overVal ? *term.args.front() : term).column].name;
        const bool has = std::ranges::any_of(plan_.table->indexes, [&](const Index& index) {
            return index.columns.front() == column && index.overVal == overVal;
        });
        return has ? &term : nullptr;
    }

    const Plan& plan_;
};

}  // namespace

FileOrder OrderOfTheFile(const Plan& plan) {
    return Walk(plan).Order();
}

}  // namespace store::postgres
