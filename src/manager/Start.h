#pragma once

#include <QString>

namespace manager {

// What the process is, before the application starts.
void PrepareManager();

// Opens the stores of the register and reads its settings; throws when that can't be done.
void OpenShop();
// For what takes the place of the stores.
void CloseShop();

// Starts the owner's program on the folder of a register: the login, or at once the window of a shop that is as it was
// delivered, has sold nothing, and so has nothing to hide. False when it has ended already, as it does without a shop
// in the folder.
bool StartManager(const QString& folder);

}  // namespace manager
