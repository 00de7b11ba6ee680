#include "store/dialect/Scope.h"

#include "store/Words.h"
#include "store/dialect/NearNames.h"

namespace store::dialect {

using Form = BoundExpr::Form;

namespace {

bool SameName(const QString& a, const QString& b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

}  // namespace

int Scope::Add(const TableRef& ref) {
    const Table* table = schema_.Find(ref.name);
    if (!table) {
        QStringList known;
        for (const Table& candidate : schema_.tables) known += candidate.name;
        fail_(UnknownTable, ref.span, Words::tr("There is no table %1.").arg(ref.name), NearNames(ref.name, known));
    }
    const QString name = ref.alias.isEmpty() ? table->name : ref.alias;
    if (PositionOf(name) >= 0) {
        fail_(AmbiguousName, ref.span, Words::tr("Two tables are called %1; one needs an alias.").arg(name));
    }
    tables_.push_back({table, name});
    return static_cast<int>(tables_.size()) - 1;
}

int Scope::Add(const Table& table) {
    tables_.push_back({&table, table.name});
    return static_cast<int>(tables_.size()) - 1;
}

const Column& Scope::ColumnOf(const BoundExpr& column) const {
    return tables_[static_cast<size_t>(column.table)].table->columns[column.column];
}

int Scope::PositionOf(const QString& name) const {
    for (int i = firstVisible_; i < static_cast<int>(tables_.size()); ++i) {
        if (SameName(tables_[static_cast<size_t>(i)].name, name)) return i;
    }
    return -1;
}

int Scope::TableNamed(const QString& name, Span span) const {
    const int position = PositionOf(name);
    if (position >= 0) return position;
    QStringList known;
    for (size_t i = static_cast<size_t>(firstVisible_); i < tables_.size(); ++i) known += tables_[i].name;
    fail_(UnknownTable, span, Words::tr("The query has no table %1.").arg(name), NearNames(name, known));
}

BoundPtr Scope::Find(const NameExpr& name, Span span, bool aliases) const {
    QStringList owners;
    BoundPtr found;
    const int only = name.table.isEmpty() ? -1 : TableNamed(name.table, name.tableSpan);
    for (int i = firstVisible_; i < static_cast<int>(tables_.size()); ++i) {
        const BoundTable& table = tables_[static_cast<size_t>(i)];
        const int column = only < 0 || only == i ? table.table->Find(name.name) : -1;
        if (column < 0) continue;
        owners += table.name;
        found = Field(i, column, span);
    }
    if (owners.size() > 1) {
        fail_(AmbiguousName, span,
              Words::tr("The field %1 is in more than one table: %2.").arg(name.name, owners.join(u", ")));
    }
    if (!found && aliases && only < 0) found = FindAlias(name.name, span);
    if (found) return found;
    fail_(UnknownField, span, Words::tr("There is no field %1.").arg(name.name),
          NearNames(name.name, KnownNames(name.table, aliases)));
}

BoundPtr Scope::Field(int table, int column, Span span) const {
    const Type type = tables_[static_cast<size_t>(table)].table->columns[column].type;
    return Make({.form = Form::Column,
                 .type = type,
                 .scale = IsScaled(type) ? 4 : 0,
                 .span = span,
                 .table = table,
                 .column = column});
}

BoundPtr Scope::FindAlias(const QString& name, Span span) const {
    const Alias* found = nullptr;
    for (const Alias& alias : aliases_) {
        if (!SameName(alias.name, name)) continue;
        if (found) fail_(AmbiguousName, span, Words::tr("Two columns have the alias %1.").arg(name));
        found = &alias;
    }
    if (!found) return nullptr;
    return Make({.form = Form::Alias,
                 .type = found->expr->type,
                 .scale = found->expr->scale,
                 .span = span,
                 .args = {found->expr}});
}

QStringList Scope::KnownNames(const QString& table, bool aliases) const {
    QStringList known;
    for (const BoundTable& candidate : tables_) {
        if (!table.isEmpty() && !SameName(candidate.name, table)) continue;
        for (const Column& column : candidate.table->columns) known += column.name;
    }
    if (aliases && table.isEmpty()) {
        for (const Alias& alias : aliases_) known += alias.name;
    }
    return known;
}

}  // namespace store::dialect
