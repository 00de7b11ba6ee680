#pragma once

#include "store/dialect/Bound.h"
#include "store/dialect/Complaint.h"

namespace store::dialect {

// The names that a query text may use: its tables with their fields, and the aliases of its columns so far.
class Scope {
public:
    Scope(const Schema& schema, const Complaint& fail) : schema_(schema), fail_(fail) {}

    // Position of the new table; 3078 for one that the schema does not have.
    int Add(const TableRef& ref);
    int Add(const Table& table);
    void AddAlias(const QString& alias, BoundPtr expr) { aliases_.push_back({alias, std::move(expr)}); }

    // Hides the tables before this one, for the condition of a join within brackets.
    void SetFirstVisible(int table) { firstVisible_ = table; }

    const std::vector<BoundTable>& Tables() const { return tables_; }
    const Column& ColumnOf(const BoundExpr& column) const;
    // The table that a qualifier names; 3078 when none does.
    int TableNamed(const QString& name, Span span) const;
    // A field, or, where they count and no field has the name, an alias. 3061 unknown, 3079 ambiguous.
    BoundPtr Find(const NameExpr& name, Span span, bool aliases) const;

private:
    struct Alias {
        QString name;
        BoundPtr expr;
    };

    int PositionOf(const QString& name) const;
    BoundPtr Field(int table, int column, Span span) const;
    BoundPtr FindAlias(const QString& name, Span span) const;
    QStringList KnownNames(const QString& table, bool aliases) const;

    const Schema& schema_;
    const Complaint& fail_;
    std::vector<BoundTable> tables_;
    std::vector<Alias> aliases_;
    int firstVisible_ = 0;
};

}  // namespace store::dialect
