#include "forms/KeypadHost.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScreen>

#include "forms/Behaviours.h"
#include "forms/KeypadPlace.h"
#include "forms/Swipe.h"

namespace forms {

namespace {

constexpr int LongestTap = 1000;  // milliseconds

// The box that a line edit is, or is a part of. The arrow of a combo box is no line edit.
QWidget* BoxOf(QWidget* receiver) {
    auto* line = qobject_cast<QLineEdit*>(receiver);
    if (auto* combo = qobject_cast<QComboBox*>(line ? line->parentWidget() : receiver)) {
        line = combo->lineEdit();
        receiver = combo;
    }
    return line && line->isEnabled() && !line->isReadOnly() ? receiver : nullptr;
}

QRect OnScreen(const QWidget* widget) {
    return {widget->mapToGlobal(QPoint(0, 0)), widget->size()};
}

}  // namespace

KeypadHost::KeypadHost(QObject* parent) : QObject(parent) {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { FollowFocus(now); });
    qApp->installEventFilter(this);
}

bool KeypadHost::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            if (watched->isWidgetType())
                MousePressed(static_cast<QWidget*>(watched), static_cast<QMouseEvent&>(*event));
            break;
        case QEvent::MouseButtonRelease:
            if (watched->isWidgetType())
                MouseReleased(static_cast<QWidget*>(watched), static_cast<QMouseEvent&>(*event));
            break;
        case QEvent::KeyPress:
            // Real keys come by a window, the keypad's own go to the box at once.
            if (!watched->isWindowType()) break;
            isFollowing_ = false;
            Hide();
            break;
        case QEvent::Hide:
            if (box_ && (watched == box_ || watched == box_->window())) Hide();
            break;
        case QEvent::Move:
        case QEvent::Resize:
            if (Shown() && box_ && watched == box_->window())
                QMetaObject::invokeMethod(this, &KeypadHost::Place, Qt::QueuedConnection);
            break;
        default:
            break;
    }
    return false;
}

void KeypadHost::MousePressed(QWidget* receiver, const QMouseEvent& event) {
    pressed_ = event.button() == Qt::LeftButton ? BoxOf(receiver) : nullptr;
    pressedAt_ = event.globalPosition();
    sincePress_.start();
}

void KeypadHost::MouseReleased(QWidget* receiver, const QMouseEvent& event) {
    const QPointer<QWidget> box = std::exchange(pressed_, nullptr);
    if (!box || box != BoxOf(receiver) || sincePress_.elapsed() > LongestTap) return;
    if (!IsTap(pressedAt_, event.globalPosition()) || !wanted_()) return;
    const auto show = [this, box] {
        if (!box || BoxOf(QApplication::focusWidget()) != box) return;
        if (const auto wish = Form::KeypadWishOf(box)) ShowAt(box, *wish);
    };
    QMetaObject::invokeMethod(this, show, Qt::QueuedConnection);
}

void KeypadHost::FollowFocus(QWidget* now) {
    if (!Shown() || (now && BoxOf(now) == box_)) return;
    // Where a tap or the Enter key leads is seen when it has ended. Something modal comes up without the keypad.
    const bool isWithin = now && box_ && now->window() == box_->window();
    const bool isTap = now && BoxOf(now) == pressed_ && pressed_ && Form::KeypadWishOf(pressed_);
    if (isWithin && (isTyping_ || isTap)) return;
    Hide();
}

void KeypadHost::ShowAt(QWidget* box, const KeypadWish& wish) {
    if (Shown() && box == box_) return panel_->raise();
    Hide();
    box_ = box;
    panel_ = new KeypadPanel(box->window(), wish, box->screen()->availableSize());
    // Not from within the touch: what a key leads to may be modal.
    connect(panel_, &KeypadPanel::Typed, this, &KeypadHost::Type, Qt::QueuedConnection);
    connect(panel_, &KeypadPanel::Offered, this, &KeypadHost::TypeWhole, Qt::QueuedConnection);
    connect(panel_, &KeypadPanel::Closed, this, &KeypadHost::Hide, Qt::QueuedConnection);
    connect(panel_, &KeypadPanel::Swapped, this, &KeypadHost::Place, Qt::QueuedConnection);
    Place();
    panel_->show();
    panel_->raise();
}

void KeypadHost::Place() {
    if (!panel_ || !box_) return;
    const QWidget* window = box_->window();
    QList<QRect> spared, used;
    for (const QWidget* control : Form::SparedByKeypad(box_))
        if (control->isVisible()) spared << OnScreen(control);
    for (const QWidget* control : window->findChildren<QWidget*>()) {
        const bool isUsed = qobject_cast<const QAbstractButton*>(control) || qobject_cast<const QLineEdit*>(control);
        if (isUsed && control->isVisible() && control->isEnabled()) used << OnScreen(control);
    }
    panel_->adjustSize();
    panel_->move(PlaceOfKeypad(panel_->size(), box_->screen()->availableGeometry(),
                               {OnScreen(box_), window->frameGeometry(), spared, used}));
}

void KeypadHost::Hide() {
    if (!panel_) return;
    panel_->hide();
    panel_->deleteLater();
    panel_ = nullptr;
    box_ = nullptr;
}

void KeypadHost::Type(int key, const QString& text) {
    if (!box_) return;
    const bool isEnter = key == Qt::Key_Return;
    const QPointer<QWidget> window = box_->window();
    if (isEnter) isFollowing_ = true;
    if (Send(key, text) && isEnter) return FollowEnter(window);
    FollowFocus(QApplication::focusWidget());
}

void KeypadHost::TypeWhole(const QString& text) {
    auto* line = qobject_cast<QLineEdit*>(box_);
    if (!line) return;
    line->selectAll();
    for (const QChar character : text)
        if (!Send(character.toUpper().unicode(), character)) break;
    FollowFocus(QApplication::focusWidget());
}

bool KeypadHost::Send(int key, const QString& text) {
    const QPointer<QWidget> receiver = QApplication::focusWidget();
    if (!box_ || !receiver || BoxOf(receiver) != box_) return Hide(), false;
    const QScopedValueRollback typing(isTyping_, true);
    const bool isCapital = text.size() == 1 && text.at(0).isUpper();
    const Qt::KeyboardModifiers modifiers = isCapital ? Qt::ShiftModifier : Qt::NoModifier;
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QCoreApplication::sendEvent(receiver, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    if (receiver && receiver == QApplication::focusWidget()) QCoreApplication::sendEvent(receiver, &release);
    return true;
}

// To the next box that wants one, in the window where the key was touched.
void KeypadHost::FollowEnter(QWidget* window) {
    if (!std::exchange(isFollowing_, false)) return;
    QWidget* box = BoxOf(QApplication::focusWidget());
    const auto wish = box && window && box->window() == window ? Form::KeypadWishOf(box) : std::nullopt;
    if (!wish || !wanted_()) return Hide();
    ShowAt(box, *wish);
}

namespace {

KeypadHost* TheHost() {
    static QPointer<KeypadHost> host;
    if (!host) host = new KeypadHost(qApp);
    return host;
}

}  // namespace

void UseKeypad(std::function<bool()> wanted) {
    TheHost()->AskBeforeShowing(std::move(wanted));
}

QWidget* ShownKeypad() {
    return TheHost()->Shown();
}

}  // namespace forms
