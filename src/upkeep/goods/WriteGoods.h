#pragma once

#include <functional>

#include "upkeep/goods/GoodsChange.h"

namespace upkeep {

struct Written {
    size_t added = 0;
    size_t changed = 0;
    // Goods whose stock moved between the look and the writing: theirs is the new quantity and the movement since.
    QStringList movedMeanwhile;
};

// Writes changes that a preview told, all or none, and keeps what was there for UndoGoods in the register's folder. The
// store may be another by now. Quantities go on from what was looked at: what tills sold meanwhile is taken off the new
// one too. But where a column that is to be written holds another value than the preview told, goods are there or gone,
// a tax, a unit or a button is another's, nothing is written, and a StoreError 3197 names the goods.
// `title` tells a person later what was done.
Written WriteGoods(store::Database& main, const QString& folder, const QString& title,
                   const std::vector<GoodsChange>& changes, const std::function<bool()>& goesOn = {});

// Write one change of what is in the store, take a product out of it; within a batch.
void ChangeProduct(store::Database& main, const GoodsChange& change);
void RemoveProduct(store::Database& main, const QString& code);

}  // namespace upkeep
