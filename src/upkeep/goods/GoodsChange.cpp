#include "upkeep/goods/GoodsChange.h"

#include <algorithm>

#include "upkeep/Words.h"
#include "values/Format.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

// Two decimals, and more only where there are some.
QString AmountText(const values::Value& value) {
    constexpr qint64 unitsOfACent = values::Money::Scale / 100;
    const values::Money amount = value.ToMoney();
    return amount.Units() % unitsOfACent == 0 ? values::Format(amount, u"0.00") : values::NumberText(amount);
}

}  // namespace

void GoodsChange::Set(GoodsColumn column, const values::Value& before, const values::Value& after) {
    columns.push_back({column, before, after});
}

const ColumnChange* GoodsChange::Find(GoodsColumn column) const {
    const auto found = std::ranges::find(columns, column, &ColumnChange::column);
    return found == columns.end() ? nullptr : &*found;
}

QString KindName(RowKind kind) {
    switch (kind) {
        case RowKind::New:
            return Words::tr("new");
        case RowKind::Changed:
            return Words::tr("changed");
        case RowKind::Unchanged:
            return Words::tr("unchanged");
        case RowKind::LeftOut:
            return Words::tr("left out");
        case RowKind::Refused:
            return Words::tr("refused");
    }
    return {};
}

size_t Preview::Count(RowKind kind) const {
    return static_cast<size_t>(std::ranges::count(rows, kind, &PreviewRow::kind));
}

std::vector<GoodsChange> Preview::Changes() const {
    std::vector<GoodsChange> changes;
    for (const PreviewRow& row : rows)
        if (row.kind == RowKind::New || row.kind == RowKind::Changed) changes.push_back(row.change);
    return changes;
}

QString Preview::Shown(GoodsColumn column, const values::Value& value) const {
    if (value.IsNull()) return {};
    if (column == GoodsColumn::Price || column == GoodsColumn::Rate) return AmountText(value);
    if (column != GoodsColumn::Button) return value.ToText();
    const int group = ClickGroups::GroupOf(value);
    return group >= 0 && group < groups.size() ? groups[group] : QString();
}

QStringList Preview::Told(const PreviewRow& row) const {
    QStringList told = row.reasons;
    for (const ColumnChange& change : row.change.columns) {
        const QString after = Shown(change.column, change.after);
        if (row.kind == RowKind::Changed)
            told += Words::tr("%1 %2 → %3").arg(ColumnName(change.column), Shown(change.column, change.before), after);
        else if (row.kind == RowKind::New && !after.isEmpty() && change.column > GoodsColumn::Name)
            told += Words::tr("%1 %2").arg(ColumnName(change.column), after);
    }
    return told;
}

}  // namespace upkeep
