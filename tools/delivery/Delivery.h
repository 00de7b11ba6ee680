#pragma once

#include <QString>

#include "store/Database.h"

namespace delivery {

// Makes the folder of one register: the program's file (none when `programPath` is empty), both stores as delivered or
// with the demo shop, pictures, help texts and a ports.ini that sends both ports to spool files. A folder that holds a
// store is refused (3204). What is made belongs to the user alone, whatever the umask. Files that are there already
// stay, but for the program, which is replaced. When it fails it leaves no store behind, and no folder that was not
// there before.
void MakeProgramFolder(const QString& folder, bool withDemo, const QString& programPath = {});

// Fill newly made stores, each as one commit.
void FillDelivered(store::Database& main, store::Database& options);
// On top of the delivered contents: a small grocery with a filled click table, recipes, users and customers.
void FillDemo(store::Database& main, store::Database& options);

}  // namespace delivery
