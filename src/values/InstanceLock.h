#pragma once

#include <QString>

// One running program a folder. The lock lies on the folder itself and ends with the process, however that ends.

// False when another process holds the folder. Holding it already counts as success.
bool LockFolder(const QString& folder);
void UnlockFolder();
