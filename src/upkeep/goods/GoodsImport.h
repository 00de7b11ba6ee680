#pragma once

#include <QDateTime>

#include "upkeep/goods/GoodsPreview.h"

namespace upkeep {

// What an import, or its undoing, wrote.
struct Written {
    int added = 0;
    int changed = 0;
    int removed = 0;
    QStringList leftAlone = {};  // goods that an undoing can't bring back, and why
};

// Writes the new and changed goods of a preview, all or none, and before that what it takes to undo it, into the folder
// `undo` of the register. Refused rows are skipped, so the caller asks first. Goods that somebody changed since the
// preview, in anything but their quantity, refuse the whole with StoreError 3197 and their codes; a quantity is changed
// by as much as the preview would have, so what was sold meanwhile stays sold.
Written ImportGoods(store::Database& main, const QString& registerFolder, const GoodsPreview& preview,
                    const RowProgress& progress = {});

// When the last import was that can be undone; invalid without one.
QDateTime LastImport(const QString& registerFolder);
// Takes it back: new goods go unless they were sold since or are part of others, changed fields get their old values
// unless somebody changed them again, quantities lose what the import gave them. FileError 53 without one.
Written UndoImport(store::Database& main, const QString& registerFolder);

}  // namespace upkeep
