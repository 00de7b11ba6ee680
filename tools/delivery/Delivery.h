#pragma once

#include <QString>

#include "store/Database.h"

namespace delivery {

// How a register is delivered.
struct Register {
    bool withDemo = false;
    QString server = {};   // the address of its main store; in the folder where it is empty
    QString program = {};  // the program's file that is copied; none where it is empty
};

// Makes the folder of one register: the program, the stores as delivered or with the demo shop, pictures, help texts
// and a ports.ini that sends both ports to spool files. A main store on a server is made where there is none; where
// there is one the register joins it, but for the demo shop (3204). A folder that holds a store is refused (3204). What
// is made belongs to the user alone, whatever the umask. Files that are there already stay, but for the program, which
// is replaced. When it fails it leaves no store behind, and no folder that was not there before.
void MakeProgramFolder(const QString& folder, const Register& what = {});

// Fill newly made stores.
void FillMain(store::Database& main);
void FillOptions(store::Database& options);
// On top of the delivered contents: a small grocery with a filled click table, recipes, users and customers.
void FillDemo(store::Database& main, store::Database& options);

}  // namespace delivery
