#pragma once

#include <QColor>
#include <QIcon>

// The pictures of the main window for tool bars, by the key of the button: "save", "help", "close"; none for another.
// They are drawn, so that they are sharp on dense screens and of the ink of their place.
QIcon DrawImage(const QString& key, const QColor& ink);

// The side of a picture, in points of the screen.
constexpr int ImageSize = 18;
