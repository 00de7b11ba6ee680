#include "store/dialect/Binder.h"

#include <algorithm>

#include "store/Words.h"
#include "store/dialect/ExprBinder.h"
#include "store/dialect/Limits.h"
#include "store/dialect/Typing.h"

using namespace Qt::StringLiterals;

namespace store::dialect {

using Form = BoundExpr::Form;

namespace {

constexpr Clause InColumns{u"SELECT", true, true};
constexpr Clause InOn{u"ON", false, false};
constexpr Clause InWhere{u"WHERE", false, false};
constexpr Clause InGroup{u"GROUP BY", false, false};
constexpr Clause InHaving{u"HAVING", true, true};
constexpr Clause InOrder{u"ORDER BY", true, true};
constexpr Clause InSet{u"SET", false, false};

constexpr int FirstUnnamed = 1000;

class Binder {
public:
    Binder(const Schema& schema, const QString& text) : fail_(text), scope_(schema, fail_), exprs_(scope_, fail_) {}

    BoundStatement Whole(const Select& select) {
        bound_.from = Tables(select.from);
        for (const SelectItem& item : select.items) item.expr ? AddColumn(item) : AddAllColumns(item);
        bound_.where = exprs_.BindCondition(select.where, InWhere);
        bound_.group = exprs_.BindList(select.group, InGroup);
        bound_.having = exprs_.BindCondition(select.having, InHaving);
        for (const Sorting& sorting : select.order) {
            bound_.order.push_back({exprs_.Bind(sorting.expr, InOrder), sorting.descending});
        }
        bound_.aggregate = exprs_.SawAggregate() || !bound_.group.empty() || bound_.having;
        bound_.tables = scope_.Tables();
        RequireSize();
        RequireFields();
        QualifyDoubles();
        if (bound_.aggregate) RequireGrouped();
        if (!bound_.aggregate && bound_.tables.size() == 1) NumberFields();
        return std::move(bound_);
    }

    BoundStatement Whole(const Update& update) {
        bound_.kind = BoundStatement::Kind::Update;
        scope_.Add(update.table);
        for (const Assignment& assignment : update.set) Assign(assignment);
        return Action(update.where);
    }

    BoundStatement Whole(const Delete& statement) {
        bound_.kind = BoundStatement::Kind::Delete;
        scope_.Add(statement.table);
        return Action(statement.where);
    }

    BoundStatement Criteria(const ExprPtr& condition, const Table& table) {
        scope_.Add(table);
        return Action(condition);
    }

private:
    BoundStatement Action(const ExprPtr& where) {
        bound_.where = exprs_.BindCondition(where, InWhere);
        bound_.tables = scope_.Tables();
        return std::move(bound_);
    }

    std::shared_ptr<const BoundSource> Tables(const Source& source) {
        auto bound = std::make_shared<BoundSource>();
        if (const auto* table = std::get_if<TableRef>(&source)) {
            bound->table = scope_.Add(*table);
            return bound;
        }
        const auto& joined = *std::get<std::unique_ptr<JoinedTables>>(source);
        const int first = static_cast<int>(scope_.Tables().size());
        bound->left = joined.left;
        bound->first = Tables(joined.first);
        bound->second = Tables(joined.second);
        scope_.SetFirstVisible(first);
        bound->on = exprs_.BindCondition(joined.on, InOn);
        scope_.SetFirstVisible(0);
        return bound;
    }

    void AddColumn(const SelectItem& item) {
        const BoundPtr expr = exprs_.Bind(item.expr, InColumns);
        QString name = item.alias;
        if (name.isEmpty()) {
            name =
                expr->form == Form::Column ? scope_.ColumnOf(*expr).name : u"Expr%1"_s.arg(FirstUnnamed + unnamed_++);
        } else {
            scope_.AddAlias(item.alias, expr);
        }
        AddColumn(expr, name, item);
    }

    void AddColumn(const BoundPtr& expr, const QString& name, const SelectItem& item) {
        if (bound_.columns.size() >= MaxColumns)
            fail_(SyntaxError, item.span, Words::tr("The query has too many columns."));
        bound_.columns.push_back(expr);
        bound_.output.push_back({name, expr->type, expr->scale, -1});
        plain_.push_back(item.alias.isEmpty() && expr->form == Form::Column);
    }

    void AddAllColumns(const SelectItem& item) {
        const int only = item.starTable.isEmpty() ? -1 : scope_.TableNamed(item.starTable, item.starTableSpan);
        for (int i = 0; i < static_cast<int>(scope_.Tables().size()); ++i) {
            if (only >= 0 && only != i) continue;
            const BoundTable& table = scope_.Tables()[static_cast<size_t>(i)];
            for (const Column& column : table.table->columns) {
                AddColumn(scope_.Find({table.name, item.span, column.name}, item.span, false), column.name, item);
            }
        }
    }

    // Fields of several tables that would come out under one name are told apart by their table.
    void QualifyDoubles() {
        if (bound_.tables.size() < 2) return;
        QHash<QString, int> uses;
        for (size_t i = 0; i < plain_.size(); ++i) {
            if (plain_[i]) ++uses[NameOf(i).toCaseFolded()];
        }
        for (size_t i = 0; i < plain_.size(); ++i) {
            if (!plain_[i] || uses.value(NameOf(i).toCaseFolded()) < 2) continue;
            NameOf(i).prepend(bound_.tables[static_cast<size_t>(bound_.columns[i]->table)].name + u'.');
        }
    }

    QString& NameOf(size_t column) { return bound_.output[static_cast<qsizetype>(column)].name; }

    void NumberFields() {
        for (int i = 0; const BoundPtr& column : bound_.columns) {
            OutputColumn& output = bound_.output[i++];
            if (column->form == Form::Column) output.field = column->column;
        }
    }

    // Aliases are written out in full, so a short text can stand for a long one.
    void RequireSize() const {
        qsizetype nodes = bound_.having ? bound_.having->nodes : 0;
        for (const BoundPtr& column : bound_.columns) nodes += column->nodes;
        for (const BoundPtr& expr : bound_.group) nodes += expr->nodes;
        for (const BoundSorting& sorting : bound_.order) nodes += sorting.expr->nodes;
        const bool tooMany = bound_.group.size() > MaxColumns || bound_.order.size() > MaxColumns || nodes > MaxNodes;
        if (tooMany) fail_(SyntaxError, bound_.columns.back()->span, Words::tr("The query is too complex."));
    }

    // A literal cannot tell groups or rows apart; whoever writes one there means something else.
    void RequireFields() const {
        for (const BoundPtr& expr : bound_.group) RequireField(*expr);
        for (const BoundSorting& sorting : bound_.order) RequireField(*sorting.expr);
    }

    void RequireField(const BoundExpr& expr) const {
        if (expr.form != Form::Literal && expr.form != Form::Constant) return;
        fail_(SyntaxError, expr.span, Words::tr("Expected a field, found a constant."));
    }

    void RequireGrouped() const {
        for (const BoundPtr& column : bound_.columns) RequireGrouped(*column);
        if (bound_.having) RequireGrouped(*bound_.having);
        for (const BoundSorting& sorting : bound_.order) RequireGrouped(*sorting.expr);
    }

    void RequireGrouped(const BoundExpr& expr) const {
        if (IsAggregate(expr)) return;
        const auto isExpr = [&expr](const BoundPtr& group) { return Same(*group, expr); };
        if (std::any_of(bound_.group.begin(), bound_.group.end(), isExpr)) return;
        if (expr.form == Form::Column) {
            fail_(
                NotInAggregate, expr.span,
                Words::tr("The field %1 is neither grouped nor inside an aggregate.").arg(scope_.ColumnOf(expr).name));
        }
        for (const BoundPtr& arg : expr.args) RequireGrouped(*arg);
    }

    void Assign(const Assignment& assignment) {
        const BoundPtr target = exprs_.Bind(assignment.target, InSet);
        const Column& column = scope_.ColumnOf(*target);
        for (const BoundAssignment& earlier : bound_.set) {
            if (earlier.column != target->column) continue;
            fail_(SyntaxError, target->span, Words::tr("The field %1 is set twice.").arg(column.name));
        }
        const BoundPtr value = exprs_.Bind(assignment.value, InSet);
        bound_.set.push_back({target->column, Assigned(value, column, fail_)});
    }

    Complaint fail_;
    Scope scope_;
    ExprBinder exprs_;
    BoundStatement bound_;
    std::vector<bool> plain_;  // columns that are a field without alias
    int unnamed_ = 0;
};

}  // namespace

BoundStatement Bind(const Statement& statement, const Schema& schema, const QString& text) {
    return std::visit([&](const auto& one) { return Binder(schema, text).Whole(one); }, statement);
}

BoundStatement BindCriteria(const ExprPtr& condition, const Table& table, const QString& text) {
    static const Schema none;
    return Binder(none, text).Criteria(condition, table);
}

}  // namespace store::dialect
