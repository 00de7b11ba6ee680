#pragma once

#include <QMargins>
#include <QRect>

namespace forms {

// Where a window of this size lies, without its frame: centred, but moved and made smaller as far as it takes for the
// frame to be on the screen.
QRect WindowPlace(QSize size, QPoint centre, const QMargins& frame, const QRect& screen);

}  // namespace forms
