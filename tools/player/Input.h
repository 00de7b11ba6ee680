#pragma once

#include <QString>
#include <Qt>

class QPoint;
class QWidget;
class QWindow;

// Single events, as the window system would send them.
namespace drivers {

// To a window, which hands it to its control, its shortcuts and its letters.
void SendKey(QWindow* window, bool isPress, Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers);
void ClickAt(QWidget* control, QPoint place, Qt::MouseButton button);
// So soon after the click before it that the two are a double click.
void ClickAgainAt(QWidget* control, QPoint place, Qt::MouseButton button = Qt::LeftButton);
// Lets the program go on for so many milliseconds.
void Wait(int milliseconds);

}  // namespace drivers
