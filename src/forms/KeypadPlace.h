#pragma once

#include <QList>
#include <QRect>

namespace forms {

// What lies around a keypad, all in the screen's coordinates.
struct KeypadSurroundings {
    QRect box;
    QRect window;
    // What must be seen while numbers are typed, for instance the total.
    QList<QRect> spared;
    // Controls that one would rather reach, too.
    QList<QRect> used;
};

// Where a keypad of this size lies: within the screen, near its box, off what it must not cover and over as little as
// can be of the rest.
QPoint PlaceOfKeypad(QSize size, const QRect& screen, const KeypadSurroundings& around);

}  // namespace forms
