#include "values/Clock.h"

#include <utility>

namespace values {

namespace {

std::function<QDateTime()>& InstalledClock() {
    static std::function<QDateTime()> clock;
    return clock;
}

}  // namespace

QDateTime Now() {
    return InstalledClock() ? InstalledClock()() : QDateTime::currentDateTime();
}

QTime TimeNow() {
    const QTime time = Now().time();
    return QTime(time.hour(), time.minute(), time.second());
}

void SetClock(std::function<QDateTime()> clock) {
    InstalledClock() = std::move(clock);
}

}  // namespace values
