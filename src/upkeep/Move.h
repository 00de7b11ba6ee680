#pragma once

#include "upkeep/Progress.h"

namespace upkeep {

struct Moved {
    int tables = 0;
    qint64 rows = 0;
    int days = 0;    // with sales
    QString keptAs;  // the old store
};

// Moves the main store of a register to a server, or into its folder where the address is empty. None may lie there:
// all rows in one transaction, then row counts and the totals of every day are compared, store.ini points to the new
// place, and the old store is put aside. Nobody else may have the store open (3218; on a server its tills find it
// gone). When it fails before the end, all stays as it was. Other registers of the store have to be told of its new
// place.
Moved MoveMainStore(const QString& folder, const QString& address, const Progress& progress = {});

// Has a register work on a shop that lies on a server already. A store in its own folder is put aside, and the name
// under which it is kept comes back; nobody may have it open (3218). One that lies elsewhere stays there for its other
// registers, and nothing comes back.
QString JoinShop(const QString& folder, const QString& address);

}  // namespace upkeep
