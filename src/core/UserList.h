#pragma once

#include <QComboBox>

#include "store/Recordset.h"

// Empties the box, adds the names of all users in the cursor's order, and chooses none.
void ListUserNames(QComboBox& box, store::Recordset& users);
