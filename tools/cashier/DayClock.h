#pragma once

#include <QDateTime>

#include "values/Clock.h"

// A clock of its own for a day that is played, so that it reads the same whenever it is played. The program goes by it
// for as long as it lives.
class DayClock {
public:
    explicit DayClock(const QDateTime& opening) : now_(opening) {
        values::SetClock([this] { return now_; });
    }
    ~DayClock() { values::SetClock({}); }
    DayClock(const DayClock&) = delete;
    DayClock& operator=(const DayClock&) = delete;

    void Pass(int minutes) { now_ = now_.addSecs(60 * minutes + 7); }
    void SetTo(const QDateTime& moment) { now_ = moment; }

private:
    QDateTime now_;
};
