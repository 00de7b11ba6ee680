#pragma once

#include <QStringList>

#include "store/Database.h"

namespace upkeep {

struct Undone {
    QString title;
    size_t restored = 0;  // goods that got old values back
    size_t removed = 0;   // goods that were new
    QStringList kept;     // what was left as it is, and why, a sentence each
};

// Takes back what WriteGoods wrote last and nobody has taken back yet, all or nothing. Old values come back where
// nobody has changed the new ones since; stock that tills took meanwhile stays taken. Goods that were new go, unless
// they were sold, changed, or made a part of others meanwhile. Repeated, it takes back the writing before, up to ten
// times. StoreError 3265 when there is nothing to take back.
Undone UndoGoods(store::Database& main, const QString& folder);

}  // namespace upkeep
