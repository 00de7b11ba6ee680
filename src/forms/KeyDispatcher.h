#pragma once

#include <QObject>
#include <QPointer>

class QKeyEvent;
class QWidget;

namespace forms {

class Form;

// Sees every key press of the program before the control that has the focus, and asks the form around it. Also follows
// the focus for the forms' handlers.
class KeyDispatcher : public QObject {
    Q_OBJECT

public:
    // Once a program; later calls do nothing.
    static void Install();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit KeyDispatcher(QObject* parent);

    void FollowFocus();
    bool KeyPressed(QWidget* receiver, QKeyEvent& key);
    bool IsPassedOn(const QWidget* receiver, const QKeyEvent& key) const;

    // The press under way, to know it again when Qt passes it on from a control to the parents.
    const QKeyEvent* press_ = nullptr;
    QPointer<QWidget> firstReceiver_;
    // A click moved the focus, and a box came up on leaving: the mouse was released over that box.
    bool clickIsSpent_ = false;
};

}  // namespace forms
