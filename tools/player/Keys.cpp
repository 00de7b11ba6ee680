#include "player/Keys.h"

#include <QApplication>
#include <QHash>
#include <QKeyEvent>
#include <QScrollArea>
#include <QWindow>

#include "forms/ListView.h"
#include "player/Input.h"

using namespace Qt::StringLiterals;

namespace drivers {

namespace {

std::function<void(const QString&)> complaints;

void Complain(const QString& words) {
    if (complaints)
        complaints(words);
    else
        qWarning("%s", qPrintable(words));
}

struct Stroke {
    Qt::Key key = Qt::Key_unknown;
    QString text;
    Qt::KeyboardModifiers modifiers;
};

const QHash<QString, Qt::Key>& KeyNames() {
    static const QHash<QString, Qt::Key> names{
        {u"enter"_s, Qt::Key_Return},  {u"tab"_s, Qt::Key_Tab},
        {u"esc"_s, Qt::Key_Escape},    {u"del"_s, Qt::Key_Delete},
        {u"ins"_s, Qt::Key_Insert},    {u"home"_s, Qt::Key_Home},
        {u"end"_s, Qt::Key_End},       {u"up"_s, Qt::Key_Up},
        {u"down"_s, Qt::Key_Down},     {u"left"_s, Qt::Key_Left},
        {u"right"_s, Qt::Key_Right},   {u"pgup"_s, Qt::Key_PageUp},
        {u"pgdn"_s, Qt::Key_PageDown}, {u"backspace"_s, Qt::Key_Backspace},
        {u"space"_s, Qt::Key_Space},   {u"bksp"_s, Qt::Key_Backspace},
    };
    return names;
}

// What a keyboard sends along with keys that have no letter.
QString TextOf(Qt::Key key) {
    switch (key) {
        case Qt::Key_Return:
            return u"\r"_s;
        case Qt::Key_Tab:
            return u"\t"_s;
        case Qt::Key_Escape:
            return u"\x1b"_s;
        case Qt::Key_Backspace:
            return u"\b"_s;
        case Qt::Key_Delete:
            return u"\x7f"_s;
        case Qt::Key_Space:
            return u" "_s;
        default:
            return {};
    }
}

Stroke Character(QChar character) {
    const QChar upper = character.toUpper();
    Qt::KeyboardModifiers modifiers;
    if (character.isUpper()) modifiers |= Qt::ShiftModifier;
    return {static_cast<Qt::Key>(upper.unicode()), QString(character), modifiers};
}

Stroke Named(QStringView name) {
    Qt::KeyboardModifiers modifiers;
    const struct {
        QStringView prefix;
        Qt::KeyboardModifier modifier;
    } prefixes[] = {{u"shift+", Qt::ShiftModifier}, {u"ctrl+", Qt::ControlModifier}, {u"alt+", Qt::AltModifier}};
    for (bool found = true; found;) {
        found = false;
        for (const auto& [prefix, modifier] : prefixes) {
            if (!name.startsWith(prefix, Qt::CaseInsensitive)) continue;
            name = name.mid(prefix.size());
            modifiers |= modifier;
            found = true;
        }
    }
    if (name.size() == 1) {
        Stroke stroke = Character(name.front());
        stroke.modifiers |= modifiers;
        return stroke;
    }
    Qt::Key key = KeyNames().value(name.toString().toLower(), Qt::Key_unknown);
    if (name.startsWith(u'f', Qt::CaseInsensitive) && key == Qt::Key_unknown)
        if (const int number = name.mid(1).toInt(); number >= 1 && number <= 12)
            key = static_cast<Qt::Key>(Qt::Key_F1 + number - 1);
    if (key == Qt::Key_Tab && modifiers & Qt::ShiftModifier) key = Qt::Key_Backtab;
    if (key == Qt::Key_unknown) Complain(u"no key is named %1"_s.arg(name));
    return {key, TextOf(key), modifiers};
}

QWindow* FocusWindow() {
    Settle();
    if (QWidget* popup = QApplication::activePopupWidget()) return popup->window()->windowHandle();
    if (QWidget* control = QApplication::focusWidget()) return control->window()->windowHandle();
    QWidget* window = QApplication::activeWindow();
    return window ? window->windowHandle() : nullptr;
}

void Send(const Stroke& stroke) {
    QWindow* window = FocusWindow();
    if (!window) {
        return Complain(u"no window takes the key %1 (%2)"_s.arg(stroke.text).arg(stroke.key));
    }
    SendKey(window, true, stroke.key, stroke.text, stroke.modifiers);
    // The press may have closed the window, or opened another one: that one gets the release.
    if (QWindow* now = FocusWindow()) SendKey(now, false, stroke.key, stroke.text, stroke.modifiers);
    // A button that is reached by its letter stays down for a moment before it clicks.
    if (stroke.modifiers & Qt::AltModifier) Wait(150);
    Settle();
}

}  // namespace

void HearKeyTrouble(std::function<void(const QString&)> listener) {
    complaints = std::move(listener);
}

void Keys(QStringView script) {
    while (!script.isEmpty()) {
        if (!script.startsWith(u'{')) {
            Send(Character(script.front()));
            script = script.mid(1);
            continue;
        }
        // "{}}" names the closing brace.
        const qsizetype end = script.indexOf(u'}', 2);
        if (end < 2) return Complain(u"a brace without its end in the keys"_s);
        Send(Named(script.mid(1, end - 1)));
        script = script.mid(end + 1);
    }
}

void HoldKey(Qt::Key key, int repeats) {
    for (int i = 0; i <= repeats; ++i) {
        QWidget* control = QApplication::focusWidget() ? QApplication::focusWidget() : QApplication::activeWindow();
        if (!control) return Complain(u"no control takes a held key"_s);
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, TextOf(key), i > 0);
        QApplication::sendEvent(control, &press);
        Settle();
    }
}

namespace {

// As a person would, who looks for it.
void ScrollTo(QWidget* control) {
    for (QWidget* around = control->parentWidget(); around; around = around->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(around)) area->ensureWidgetVisible(control);
}

}  // namespace

void Click(QWidget* control, Qt::MouseButton button) {
    Settle();
    ScrollTo(control);
    ClickAt(control, control->rect().center(), button);
    Settle();
}

namespace {

QPoint PlaceOf(forms::ListView* list, int row) {
    QPoint place(list->viewport()->width() / 2, list->viewport()->height() - 2);
    if (row < 0) return place;
    list->scrollTo(list->model()->index(row, 0));
    place.setY(list->visualRect(list->model()->index(row, 0)).center().y());
    if (list->visualRect(list->model()->index(row, 0)).isEmpty())
        place.setY(list->visualRect(list->model()->index(row, list->model()->columnCount() - 1)).center().y());
    return place;
}

}  // namespace

void ClickRow(forms::ListView* list, int row, Qt::MouseButton button) {
    Settle();
    ClickAt(list->viewport(), PlaceOf(list, row), button);
    Settle();
}

void DoubleClickRow(forms::ListView* list, int row) {
    ClickRow(list, row);
    ClickAgainAt(list->viewport(), PlaceOf(list, row));
    Settle();
}

void Settle() {
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

}  // namespace drivers
