#pragma once

#include <QDateTime>
#include <functional>

namespace values {

// The one clock of the program. Tests and the demonstration day set it; an empty function sets the system's clock back.
QDateTime Now();
inline QDate Today() {
    return Now().date();
}
// The time of day without milliseconds: what rows and receipts hold.
QTime TimeNow();
void SetClock(std::function<QDateTime()> clock);

}  // namespace values
