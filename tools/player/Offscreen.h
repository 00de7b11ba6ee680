#pragma once

#include <QSize>
#include <QString>

namespace drivers {

// Gives the off-screen platform a till's screen instead of the small square one that it has by itself; another platform
// that QT_QPA_PLATFORM names stays as it is. Before the application is constructed; `folder` takes a small file.
void UseTillScreen(const QString& folder, QSize size = {1366, 768});

// The off-screen platform tells of each window that it cannot raise it; nobody wants to read that.
void HushPlatform();

}  // namespace drivers
