#pragma once

#include "upkeep/Progress.h"

namespace upkeep {

// What became of the store that a register worked on.
struct OldStore {
    QString keptAs;    // put aside under this name; empty where it stays for its other registers
    QString whyStays;  // or why it could not be, and lies where it was
};

struct Moved {
    int tables = 0;
    qint64 rows = 0;
    int days = 0;  // with sales
    OldStore old;
};

// Moves the main store of a register to a server, or into its folder where the address is empty. None may lie there:
// all rows in one transaction, then row counts and the totals of every day are compared, store.ini points to the new
// place, and the old store is put aside. Nobody else may have the store open (3218; on a server its tills find it
// gone). When it throws, the register works on its store as before. Other registers of the store have to be told of its
// new place.
Moved MoveMainStore(const QString& folder, const QString& address, const Progress& progress = {});

// Has a register work on a shop that lies on a server already. A store in its own folder is put aside; nobody may have
// it open (3218). One that lies elsewhere stays there for its other
// registers, and it may be gone.
OldStore JoinShop(const QString& folder, const QString& address);

}  // namespace upkeep
