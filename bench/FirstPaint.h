#pragma once

#include <QString>

namespace bench {

// Prints "painted" when the window of this name was painted for the first time, and ends the event loop.
void QuitWhenPainted(const QString& window);

}  // namespace bench
