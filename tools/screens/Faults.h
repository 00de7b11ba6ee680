#pragma once

#include <QStringList>

class QWidget;

namespace screens {

// What a user could not read, reach or hear on a window as it stands: a window or control that is not within its screen
// or window, a text that is cut, controls over each other, a control without a name for those who can't see it. A
// sentence each, with the names of window and control.
QStringList FaultsOf(const QWidget& window);

}  // namespace screens
