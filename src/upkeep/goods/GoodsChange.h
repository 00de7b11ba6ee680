#pragma once

#include <array>
#include <vector>

#include "upkeep/goods/Assortment.h"
#include "upkeep/goods/GoodsRules.h"

namespace upkeep {

struct ColumnChange {
    GoodsColumn column{};
    values::Value before;
    values::Value after;
};

// What becomes of one product: of a new one all its columns, of another those that get a new value.
struct GoodsChange {
    QString code;  // as the store spells it
    bool isNew = false;
    std::vector<ColumnChange> columns;

    void Set(GoodsColumn column, const values::Value& before, const values::Value& after);
    // Null when it stays.
    const ColumnChange* Find(GoodsColumn column) const;
};

enum class RowKind {
    New,
    Changed,
    Unchanged,
    LeftOut,  // of the kind that was not asked for
    Refused,
};
inline constexpr size_t RowKinds = 5;
QString KindName(RowKind kind);

// What would become of a row of a table, or of a product.
struct PreviewRow {
    qint64 line = 0;  // in the file, 0 without one
    RowKind kind = RowKind::Unchanged;
    QString code;  // as it is written there
    QString name;
    GoodsChange change;
    QStringList reasons;  // why it is refused or left out, a sentence each
};

// All that would be done, before anything is.
struct Preview {
    std::vector<PreviewRow> rows;
    QStringList remarks;  // about the table as a whole
    QStringList groups;   // the names of the click table's

    size_t Count(RowKind kind) const;
    // What is to be written.
    std::vector<GoodsChange> Changes() const;
    // "Price 1.15 → 1.20", a change each; amounts by the user's locale.
    QStringList Told(const PreviewRow& row) const;
    QString Shown(GoodsColumn column, const values::Value& value) const;
};

}  // namespace upkeep
