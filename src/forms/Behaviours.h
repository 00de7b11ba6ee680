#pragma once

#include <QPointer>
#include <map>
#include <optional>
#include <vector>

#include "forms/Dimmed.h"
#include "forms/FocusReturn.h"
#include "forms/Form.h"

class QEventLoop;
class QTimer;

namespace forms {

// What a form and its controls were told to do beyond what they do by nature, and the form's state on the screen.
struct Form::Behaviours : QObject {
    explicit Behaviours(Form& owner);

    // The keys of the whole form. True when the key is used up.
    bool FormKey(const QKeyEvent& key);
    // The keys of the control that has the focus, after the form's own and before the control's handling.
    bool ControlKey(QWidget* control, QKeyEvent& key);
    // Whether a key of the form must not become a shortcut of a menu or a button.
    bool Claims(const QKeyEvent& key) const;

    // Finds out whether another control of the form has the focus now, and tells the handlers.
    void FollowFocus();

    bool eventFilter(QObject* watched, QEvent* event) override;

    struct MouseHandler {
        Qt::MouseButton button;
        std::function<void()> run;
    };
    struct Control {
        std::vector<KeyBinding> keys;
        bool keysNeedRows = false;
        bool enterMovesOn = false;
        std::optional<QString> numericAnd;
        std::optional<KeypadKeys> keypad;
        std::function<QStringList()> keypadOffers;
        std::optional<OnFocus> highlight;
        bool clickedInto = false;
        std::vector<std::function<void()>> lostFocus;
        std::vector<MouseHandler> mouse;
    };
    std::optional<KeypadWish> KeypadFor(const QWidget* box) const;
    // Watches a control from its first behaviour on.
    Control& For(QWidget* control);

    Form& form;
    std::vector<KeyBinding> functionKeys;
    bool enterMovesOn = false;
    std::map<const QObject*, Control> controls;
    QPointer<QWidget> focused;
    QList<QWidget*> sparedByKeypad;

    // A mouse button, or a finger, that came down on a control.
    struct Pressed {
        QPointF at;
        bool counts = true;  // not yet drawn away, and not yet taken for a long press
    };
    std::optional<Pressed> pressed;
    QTimer* longPress;
    QPointer<QWidget> pressedControl;

    std::optional<FocusReturn> cameFrom;
    std::optional<Dimmed> below;
    QPointer<QEventLoop> modalLoop;
    bool unloading = false;
    bool sized = false;  // for its first showing

private:
    bool Press(const std::vector<KeyBinding>& keys, const QKeyEvent& key);
    // True when the event has been dealt with.
    bool FocusArrives(QWidget* box, Control& control, const QFocusEvent& event);
    void MousePressed(QWidget* watched, const QMouseEvent& event);
    void MouseMoved(const QMouseEvent& event);
    void MouseReleased(QWidget* watched, Control& control, const QMouseEvent& event);
    void LongPressed();
    // A control, or the one that the watched part belongs to.
    std::map<const QObject*, Control>::iterator Find(const QObject* watched);
};

}  // namespace forms
