#pragma once

#include <QString>

namespace manager {

// What the process is, before the application starts.
void PrepareManager();

// Starts the owner's program on the folder of a register: the login, or at once the window of a shop that is as it was
// delivered, has sold nothing, and so has nothing to hide. False when it has ended already, as it does without a shop
// in the folder.
bool StartManager(const QString& folder);

// Closes the stores for what takes their place, and opens what is there then; throws when that can't be opened.
void CloseShop();
void OpenShop();

}  // namespace manager
