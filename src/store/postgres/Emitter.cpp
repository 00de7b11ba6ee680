#include "store/postgres/Emitter.h"

#include <algorithm>

#include "store/SqlText.h"
#include "store/postgres/FileOrder.h"

using namespace Qt::StringLiterals;

namespace store::postgres {

using dialect::BoundAssignment;
using dialect::BoundSorting;
using dialect::BoundSource;
using dialect::Plan;

namespace {

std::string Clause(const char* keyword, const std::string& text) {
    return text.empty() ? text : keyword + text;
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
        query_.one = head + from + " = " + parameter(1);
        query_.some = head + from + " = ANY(" + parameter(1) + "[])";
        query_.after = head + from + " > " + parameter(1) + " AND " + KeySql(0) + " <= " + parameter(2) + " ORDER BY " +
                       KeySql(0) + " LIMIT ";
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
        const FileOrder file = plan_.table ? OrderOfTheFile(plan_) : FileOrder();
        if (file.first != nullptr) AppendTo(order, exprs_.Key(*file.first) + " NULLS FIRST");
        for (size_t i = 0; i < plan_.tables.size(); ++i) AppendTo(order, KeySql(i) + (file.isBackwards ? " DESC" : ""));
        return order;
    }

    const Plan& plan_;
    ServerQuery query_;
    ExprEmitter exprs_{plan_.tables};
};

}  // namespace

QString KeyColumn(const Table& table) {
    const auto numbering = std::ranges::find_if(table.columns, &Column::selfNumbering);
    return numbering == table.columns.end() ? u"RowKey"_s : numbering->name;
}

std::string SequenceSql(const Table& table) {
    return "pg_get_serial_sequence('" + Quoted(table.name) + "', '" + KeyColumn(table).toStdString() + "')";
}

ServerQuery Emit(const Plan& plan) {
    return Emitter(plan).Whole();
}

}  // namespace store::postgres
