#pragma once

#include <QString>
#include <Qt>
#include <functional>

namespace forms {
class ListView;
}

class QWidget;

// The keyboard and the mouse of a cashier.
namespace drivers {

// Types to whatever has the focus. Keys in braces: {Enter} {Tab} {Esc} {F1}..{F12} {Del} {Ins} {Home} {End} {Up} {Down}
// {Left} {Right} {PgUp} {PgDn} {Backspace} {Space}; modifiers before them, {Shift+Tab} {Alt+p} {Ctrl+v}; {{} and {}}
// are braces. A key that opens a modal form or box returns when that has closed.
void Keys(QStringView script);
// The same key held down: the presses that a keyboard repeats by itself.
void HoldKey(Qt::Key key, int repeats);

// A click in the middle of a control, or on a row of a list; row -1 is the empty space below the rows.
void Click(QWidget* control, Qt::MouseButton button = Qt::LeftButton);
void ClickRow(forms::ListView* list, int row, Qt::MouseButton button = Qt::LeftButton);
void DoubleClickRow(forms::ListView* list, int row);

// Who hears of keys that nobody takes; without a listener they are a warning on standard error.
void HearKeyTrouble(std::function<void(const QString&)> listener);

// Lets everything that is under way come to rest.
void Settle();

}  // namespace drivers
