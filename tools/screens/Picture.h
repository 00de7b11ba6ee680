#pragma once

#include <QImage>

class QWidget;

namespace screens {

// A window as its user sees it: its clocks at the present minute, and a bar with its title above a dialog, since the
// off-screen platform has no window manager that would draw one.
QImage PictureOf(QWidget& window);

// Writes a PNG that is small and has the same bytes each time: 256 colours at most, in which the letters of a screen
// still look as they were painted. False when the file can't be written.
bool SavePicture(const QImage& picture, const QString& path);

}  // namespace screens
