#include "forms/Behaviours.h"

#include <QAbstractScrollArea>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPushButton>
#include <QStyle>
#include <QTimer>

#include "forms/Controls.h"
#include "forms/LongWork.h"
#include "forms/ScanBurst.h"
#include "forms/Swipe.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;

namespace forms {

namespace {

bool IsEnter(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool HasNoModifier(const QKeyEvent& key) {
    return (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

bool IsPlainEnter(const QKeyEvent& key) {
    return IsEnter(key.key()) && HasNoModifier(key);
}

bool Matches(const KeyBinding& binding, const QKeyEvent& key) {
    if (!HasNoModifier(key)) return false;
    return binding.key == key.key() || (IsEnter(binding.key) && IsEnter(key.key()));
}

const KeyBinding* FindBinding(const std::vector<KeyBinding>& keys, const QKeyEvent& key) {
    for (const auto& binding : keys)
        if (Matches(binding, key)) return &binding;
    return nullptr;
}

// The key goes on, is dropped, or arrives as the decimal separator.
bool FilterNumeric(QWidget* box, const QString& also, QKeyEvent& key) {
    if (!IsCharacter(key)) return false;
    const QString text = key.text();
    if (text.size() > 1) return true;
    const QChar typed = text.at(0);
    if ((typed >= u'0' && typed <= u'9') || also.contains(typed)) return false;
    if (typed != u'.' && typed != u',') return true;
    const QChar separator = values::DecimalSeparatorChar();
    if (typed == separator) return false;
    QKeyEvent replaced(key.type(), separator.unicode(), key.modifiers(), QString(separator), key.isAutoRepeat());
    static_cast<QObject*>(box)->event(&replaced);
    return true;
}

const Form* FormOf(const QWidget* control) {
    while (control && !qobject_cast<const Form*>(control)) control = control->parentWidget();
    return static_cast<const Form*>(control);
}

QLineEdit* LineEditOf(QWidget* box) {
    if (auto* line = qobject_cast<QLineEdit*>(box)) return line;
    if (auto* combo = qobject_cast<QComboBox*>(box)) return combo->lineEdit();
    return nullptr;
}

void SelectWhole(QWidget* box) {
    if (QLineEdit* line = LineEditOf(box))
        line->selectAll();
    else if (box->metaObject()->indexOfMethod("selectAll()") >= 0)
        QMetaObject::invokeMethod(box, "selectAll", Qt::DirectConnection);
}

}  // namespace

Form::Behaviours::Behaviours(Form& owner) : form(owner), longPress(new QTimer(this)) {
    longPress->setSingleShot(true);
    longPress->setInterval(LongPress);
    connect(longPress, &QTimer::timeout, this, &Behaviours::LongPressed);
}

bool Form::Behaviours::FormKey(const QKeyEvent& key) {
    if (Press(functionKeys, key)) return true;
    if (!enterMovesOn || !IsPlainEnter(key)) return false;
    const QWidget* window = form.window();
    SendTab(window->focusWidget() ? window->focusWidget() : &form);
    return true;
}

bool Form::Behaviours::ControlKey(QWidget* control, QKeyEvent& key) {
    if (const auto found = controls.find(control); found != controls.end()) {
        const Control& told = found->second;
        const auto* list = qobject_cast<ListView*>(control);
        const bool mute = told.keysNeedRows && list && list->Count() == 0;
        if (!mute && Press(told.keys, key)) return true;
        if (told.enterMovesOn && IsPlainEnter(key)) {
            SendTab(control);
            return true;
        }
        if (told.numericAnd && FilterNumeric(control, *told.numericAnd, key)) return true;
    }
    // Buttons of a plain window answer to the space bar only.
    if (auto* button = qobject_cast<QPushButton*>(control); button && IsPlainEnter(key)) {
        if (!key.isAutoRepeat()) button->click();
        return true;
    }
    return false;
}

bool Form::Behaviours::Claims(const QKeyEvent& key) const {
    return FindBinding(functionKeys, key) != nullptr;
}

bool Form::Behaviours::Press(const std::vector<KeyBinding>& keys, const QKeyEvent& key) {
    const KeyBinding* found = FindBinding(keys, key);
    if (!found) return false;
    // A key held down acts once.
    if (key.isAutoRepeat()) return true;
    const KeyBinding binding = *found;
    if (binding.button)
        binding.button->click();
    else
        form.Run(binding.action);
    return true;
}

Form::Behaviours::Control& Form::Behaviours::For(QWidget* control) {
    const auto [place, isNew] = controls.try_emplace(control);
    if (isNew) {
        control->installEventFilter(this);
        connect(control, &QObject::destroyed, this, [this](QObject* gone) { controls.erase(gone); });
    }
    return place->second;
}

void Form::Behaviours::FollowFocus() {
    if (!form.loaded_ || !form.window()->isActiveWindow()) return;
    QWidget* now = form.window()->focusWidget();
    // A menu bar or another part of the frame takes the focus for a moment only.
    if (now && !form.isAncestorOf(now)) return;
    if (now == focused) return;

    const QPointer<Form> alive = &form;
    const QPointer<QWidget> before = std::exchange(focused, nullptr);
    if (const auto left = controls.find(before); left != controls.end()) {
        // A handler may add behaviours or end the form.
        const auto handlers = left->second.lostFocus;
        for (const auto& handler : handlers) handler();
    }
    if (!alive || !form.loaded_ || focused || form.window()->focusWidget() != now) return;
    focused = now;
}

bool Form::Behaviours::eventFilter(QObject* watched, QEvent* event) {
    auto* widget = qobject_cast<QWidget*>(watched);
    const auto found = Find(watched);
    if (!widget || found == controls.end()) return false;
    switch (event->type()) {
        case QEvent::FocusIn:
            return FocusArrives(widget, found->second, static_cast<QFocusEvent&>(*event));
        case QEvent::MouseButtonPress:
            MousePressed(widget, static_cast<QMouseEvent&>(*event));
            break;
        case QEvent::MouseMove:
            MouseMoved(static_cast<QMouseEvent&>(*event));
            break;
        case QEvent::MouseButtonRelease:
            MouseReleased(widget, found->second, static_cast<QMouseEvent&>(*event));
            break;
        default:
            break;
    }
    return false;
}

// Lists get their mouse in the viewport, editable combo boxes in their line edit.
std::map<const QObject*, Form::Behaviours::Control>::iterator Form::Behaviours::Find(const QObject* watched) {
    const auto found = controls.find(watched);
    return found == controls.end() ? controls.find(watched->parent()) : found;
}

bool Form::Behaviours::FocusArrives(QWidget* box, Control& control, const QFocusEvent& event) {
    // The highlight belongs to coming to a control, not to a window that comes back: who was typing goes on typing.
    if (!control.highlight || box == focused) return false;
    // Yellow now, and white when it is left, whatever it was before.
    if (box->property("role") == u"pale"_s) {
        SetRole(box, {});
    }
    if (*control.highlight == OnFocus::SelectAll) {
        SelectWhole(box);
        control.clickedInto = event.reason() == Qt::MouseFocusReason;
        return false;
    }
    // A box selects its text by itself when the Tab key leads into it, but not for another reason.
    if (event.reason() == Qt::MouseFocusReason) return false;
    QFocusEvent withoutSelecting(QEvent::FocusIn, Qt::OtherFocusReason);
    static_cast<QObject*>(box)->event(&withoutSelecting);
    return true;
}

void Form::Behaviours::MousePressed(QWidget* watched, const QMouseEvent& event) {
    pressed = {event.globalPosition()};
    pressedControl = watched;
    if (event.button() == Qt::LeftButton) longPress->start();
}

void Form::Behaviours::MouseMoved(const QMouseEvent& event) {
    if (!pressed || IsTap(pressed->at, event.globalPosition())) return;
    pressed->counts = false;
    longPress->stop();
}

// A finger has no second button. A box that came up meanwhile keeps the release to itself, and what is being stored
// must not change under it.
void Form::Behaviours::LongPressed() {
    const bool isHeld = QGuiApplication::mouseButtons() & Qt::LeftButton;
    if (!isHeld || !form.window()->isActiveWindow() || LongWork::IsUnderWay()) return pressed.reset();
    const auto found = pressedControl ? Find(pressedControl) : controls.end();
    if (!pressed || found == controls.end() || !pressedControl->isEnabled()) return;
    const auto handlers = found->second.mouse;
    for (const auto& handler : handlers) {
        if (handler.button != Qt::RightButton) continue;
        if (pressed) pressed->counts = false;
        handler.run();
    }
}

void Form::Behaviours::MouseReleased(QWidget* watched, Control& control, const QMouseEvent& event) {
    if (control.clickedInto) {
        control.clickedInto = false;
        const QLineEdit* line = LineEditOf(watched);
        const bool dragged = line && line->hasSelectedText();
        if (!dragged)
            QMetaObject::invokeMethod(
                watched, [watched] { SelectWhole(watched); }, Qt::QueuedConnection);
    }
    longPress->stop();
    const auto press = std::exchange(pressed, std::nullopt);
    if (press && !(press->counts && IsTap(press->at, event.globalPosition()))) return;
    if (!watched->isEnabled() || !watched->rect().contains(event.position().toPoint())) return;
    const auto handlers = control.mouse;
    for (const auto& handler : handlers)
        if (handler.button == event.button()) handler.run();
}

std::optional<KeypadWish> Form::Behaviours::KeypadFor(const QWidget* box) const {
    static const Control nothing;
    const auto found = controls.find(box);
    const Control& told = found == controls.end() ? nothing : found->second;
    const QString also = told.numericAnd.value_or(QString());
    if (told.keypad) return KeypadWish{*told.keypad, also, told.keypadOffers};
    if (told.numericAnd) return KeypadWish{KeypadKeys::Number, also, told.keypadOffers};
    const auto* line = qobject_cast<const QLineEdit*>(box);
    if (line && line->echoMode() == QLineEdit::Password) return KeypadWish{KeypadKeys::Text, {}, {}};
    return std::nullopt;
}

std::optional<KeypadWish> Form::KeypadWishOf(const QWidget* box) {
    const Form* form = FormOf(box);
    return form ? form->behaviours_->KeypadFor(box) : std::nullopt;
}

QList<QWidget*> Form::SparedByKeypad(const QWidget* box) {
    const Form* form = FormOf(box);
    return form ? form->behaviours_->sparedByKeypad : QList<QWidget*>();
}

// --- Told by the screens.

void Form::FunctionKeys(std::initializer_list<KeyBinding> keys) {
    behaviours_->functionKeys.insert(behaviours_->functionKeys.end(), keys);
}

void Form::ControlKeys(QWidget* control, std::initializer_list<KeyBinding> keys) {
    auto& known = behaviours_->For(control).keys;
    known.insert(known.end(), keys);
}

void Form::ListKeys(ListView* list, std::initializer_list<KeyBinding> keys) {
    ControlKeys(list, keys);
    behaviours_->For(list).keysNeedRows = true;
}

void Form::HighlightOnFocus(std::initializer_list<QWidget*> boxes, OnFocus what) {
    for (QWidget* box : boxes) {
        box->setProperty("highlight", true);
        Restyle(box);
        behaviours_->For(box).highlight = what;
        auto* combo = qobject_cast<QComboBox*>(box);
        if (combo && combo->lineEdit()) combo->lineEdit()->installEventFilter(behaviours_.get());
    }
}

void Form::NumericKeys(std::initializer_list<QLineEdit*> boxes, const QString& also) {
    for (QLineEdit* box : boxes) behaviours_->For(box).numericAnd = also;
}

void Form::Keypad(std::initializer_list<QWidget*> boxes, KeypadKeys keys) {
    for (QWidget* box : boxes) behaviours_->For(box).keypad = keys;
}

void Form::KeypadOffers(QLineEdit* box, std::function<QStringList()> offers) {
    behaviours_->For(box).keypadOffers = std::move(offers);
}

void Form::KeypadSpares(std::initializer_list<QWidget*> controls) {
    behaviours_->sparedByKeypad.append(controls);
}

void Form::EnterMovesOn(std::initializer_list<QWidget*> boxes) {
    for (QWidget* box : boxes) behaviours_->For(box).enterMovesOn = true;
}

void Form::EnterMovesOn() {
    behaviours_->enterMovesOn = true;
}

void Form::WatchFocus(QWidget* control, std::function<void()> lost) {
    behaviours_->For(control).lostFocus.push_back(std::move(lost));
}

void Form::WatchMouse(QWidget* control, Qt::MouseButton button, std::function<void()> handler) {
    behaviours_->For(control).mouse.push_back({button, std::move(handler)});
    if (auto* area = qobject_cast<QAbstractScrollArea*>(control))
        area->viewport()->installEventFilter(behaviours_.get());
}

}  // namespace forms
