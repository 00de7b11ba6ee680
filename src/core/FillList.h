#pragma once

#include <QString>
#include <vector>

#include "forms/ListView.h"
#include "store/Listing.h"

// A cell of a list's row: a field as it comes, or by a pattern of values::Format. One that can't be shown is empty.
struct ListCell {
    QString field = {};  // without a name, the query's column at the same position
    QString pattern = {};
};

// Gives the list a row for each row of the query in the place of what it held. All rows are of one moment, and none is
// read from the store when the list is painted. The first rows are there when this returns, the others may come in
// later; whoever asks the list for one that is missing, or for the count, waits for it. An error met at the beginning
// is thrown; one met later is told by the list, which then is empty.
void FillList(forms::ListView& list, store::Listing rows, const std::vector<ListCell>& cells,
              forms::ListView::Selects selects = forms::ListView::Selects::FirstRow);
