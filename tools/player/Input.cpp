#include "player/Input.h"

#include <QApplication>
#include <QEventLoop>
#include <QPointer>
#include <QStyleHints>
#include <QTimer>
#include <QWidget>
#include <QWindow>

// The doors that Qt keeps for drivers of a window. They stand in the headers of its test library alone, which the
// shipped demonstration does without.
QT_BEGIN_NAMESPACE
Q_GUI_EXPORT void qt_handleKeyEvent(QWindow* window, QEvent::Type type, int key, Qt::KeyboardModifiers modifiers,
                                    const QString& text, bool isRepeated, ushort count);
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow* window, const QPointF& local, const QPointF& global,
                                      Qt::MouseButtons state, Qt::MouseButton button, QEvent::Type type,
                                      Qt::KeyboardModifiers modifiers, int timestamp);
QT_END_NAMESPACE

namespace drivers {

namespace {

// Clicks that follow each other closely are a double click, so the hand's own clock goes on by more than that.
int handTime = 0;

void SendMouse(QWidget* control, QEvent::Type type, QPoint place, Qt::MouseButton button) {
    QWidget* window = control->window();
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::MouseButtons() : button;
    qt_handleMouseEvent(window->windowHandle(), control->mapTo(window, place), control->mapToGlobal(place), held,
                        button, type, Qt::NoModifier, ++handTime);
    QCoreApplication::processEvents();
}

}  // namespace

void SendKey(QWindow* window, bool isPress, Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers) {
    qt_handleKeyEvent(window, isPress ? QEvent::KeyPress : QEvent::KeyRelease, key, modifiers, text, false, 1);
    QCoreApplication::processEvents();
}

void ClickAt(QWidget* control, QPoint place, Qt::MouseButton button) {
    handTime += 2 * QGuiApplication::styleHints()->mouseDoubleClickInterval();
    ClickAgainAt(control, place, button);
}

void ClickAgainAt(QWidget* control, QPoint place, Qt::MouseButton button) {
    const QPointer<QWidget> alive = control;
    SendMouse(control, QEvent::MouseButtonPress, place, button);
    if (alive) SendMouse(control, QEvent::MouseButtonRelease, place, button);
}

void Wait(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

}  // namespace drivers
