#pragma once

#include <QString>
#include <QStringList>
#include <functional>

class QWidget;

namespace forms {

// Which keys a box is given: digits alone, digits with letters behind a key, or letters with digits behind a key.
enum class KeypadKeys { Number, Code, Text };

// What a box asks of the keypad.
struct KeypadWish {
    KeypadKeys keys = KeypadKeys::Number;
    // What a box for numbers takes besides them.
    QString also;
    // Whole texts that may be touched instead of typed.
    std::function<QStringList()> offers;
};

// From now on a tap into a box that wishes for a keypad brings it, as long as the register wants one: that is asked at
// each tap. It types as the keyboard does, never takes the focus, and goes when the box is left or a real key is typed.
void UseKeypad(std::function<bool()> wanted);

// The keypad on the screen; null while there is none.
QWidget* ShownKeypad();

}  // namespace forms
