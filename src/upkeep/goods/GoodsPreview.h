#pragma once

#include <functional>

#include "store/Database.h"
#include "upkeep/goods/AmountReader.h"
#include "upkeep/goods/GoodsColumns.h"
#include "upkeep/goods/TableFile.h"

namespace upkeep {

// How a table of goods is taken in. What is empty is guessed.
struct ImportChoice {
    QMap<int, GoodsField> columns = {};
    std::optional<DecimalSign> decimal = {};
    bool adds = true;
    bool updates = true;
    bool keepsPrice = false;  // of goods that are there
    bool keepsQuantity = false;
    QString unit = {};  // of new goods where the table has none
    QString tax = {};
};

// One product, as the table and the store have it.
struct Goods {
    QString name;
    QString unit;
    QString tax;
    values::Money price;
    values::Money quantity;
    bool operator==(const Goods&) const = default;
};

struct GoodsRow {
    enum class Kind { New, Changed, Unchanged, LeftOut, Refused };
    int line = 0;
    Kind kind = Kind::Refused;
    QString code;  // of goods that are there as the store spells it
    Goods before = {};
    Goods after = {};
    QStringList why = {};  // refused or left out, in words

    // What differs, each as "Price: 2.00 -> 2.50"; what new goods have, as "Price: 2.50".
    QStringList Changes() const;
};

struct GoodsPreview {
    ImportChoice choice;  // as it was taken
    QStringList headings;
    std::vector<GoodsRow> rows;
    int Count(GoodsRow::Kind kind) const;
};

// To be called now and then with how many of how many rows are done; false leaves the work with error 3059.
using RowProgress = std::function<bool(int done, int all)>;

// What an import would do, row by row; nothing is written. Goods are matched by their code, case ignored. The first row
// is that of the headings. A FileError where no column is that of the code.
GoodsPreview PreviewGoods(store::Database& main, const TableText& table, const ImportChoice& choice,
                          const RowProgress& progress = {});

}  // namespace upkeep
