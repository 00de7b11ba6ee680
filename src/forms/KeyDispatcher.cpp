#include "forms/KeyDispatcher.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>

#include "forms/Behaviours.h"
#include "forms/Frame.h"

namespace forms {

namespace {

// The form around a control, within its window; for the rest of a frame, the frame's child.
Form* FormAround(QWidget* control) {
    for (QWidget* widget = control; widget; widget = widget->parentWidget()) {
        if (auto* form = qobject_cast<Form*>(widget)) return form;
        if (auto* frame = qobject_cast<Frame*>(widget)) return frame->ActiveChild();
        if (widget->isWindow()) return nullptr;
    }
    return nullptr;
}

bool BelongsToMenu(const QWidget* widget) {
    return qobject_cast<const QMenu*>(widget) || qobject_cast<const QMenuBar*>(widget);
}

}  // namespace

KeyDispatcher::KeyDispatcher(QObject* parent) : QObject(parent) {
    connect(qApp, &QApplication::focusChanged, this, &KeyDispatcher::FollowFocus);
}

void KeyDispatcher::Install() {
    static QPointer<KeyDispatcher> installed;
    if (installed) return;
    installed = new KeyDispatcher(qApp);
    qApp->installEventFilter(installed);
    // The program ends by EndProgram alone, not because a message box was its only window.
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

bool KeyDispatcher::eventFilter(QObject* watched, QEvent* event) {
    const auto type = event->type();
    // The control would stay pressed down for ever.
    if (type == QEvent::MouseButtonPress && clickIsSpent_ && watched->isWidgetType()) return true;
    if (type != QEvent::KeyPress && type != QEvent::ShortcutOverride && type != QEvent::KeyRelease) return false;
    auto* receiver = qobject_cast<QWidget*>(watched);
    if (!receiver) return false;
    auto& key = static_cast<QKeyEvent&>(*event);

    if (type != QEvent::KeyPress) press_ = nullptr;
    if (type == QEvent::KeyRelease) return false;
    if (QApplication::activePopupWidget() || BelongsToMenu(receiver)) return false;
    if (type == QEvent::ShortcutOverride) {
        const Form* form = FormAround(receiver);
        if (!form || !form->behaviours_->Claims(key)) return false;
        key.accept();
        return true;
    }
    if (IsPassedOn(receiver, key) || !KeyPressed(receiver, key)) return false;
    key.accept();
    return true;
}

void KeyDispatcher::FollowFocus() {
    const int before = FocusReturn::Count();
    const QList<Form*> forms(LoadedForms().begin(), LoadedForms().end());  // a handler may load or unload some
    for (Form* form : forms)
        if (IsFormLoaded(form)) form->behaviours_->FollowFocus();
    if (FocusReturn::Count() == before) return;
    clickIsSpent_ = true;
    QMetaObject::invokeMethod(
        this, [this] { clickIsSpent_ = false; }, Qt::QueuedConnection);
}

bool KeyDispatcher::IsPassedOn(const QWidget* receiver, const QKeyEvent& key) const {
    return &key == press_ && firstReceiver_ && receiver->isAncestorOf(firstReceiver_);
}

bool KeyDispatcher::KeyPressed(QWidget* receiver, QKeyEvent& key) {
    press_ = &key;
    firstReceiver_ = receiver;
    const QPointer<QWidget> control = receiver;
    const QPointer<Form> form = FormAround(receiver);
    if (!form || ProgramIsEnding()) return false;

    // A key whose handler failed is used up all the same.
    bool used = true;
    form->Run([&] { used = form->Form_KeyDown(key); });
    if (used || !form || !control) return true;
    return form->behaviours_->ControlKey(control, key);
}

}  // namespace forms
