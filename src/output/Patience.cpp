#include "output/Patience.h"

#include <cerrno>
#include <utility>

#include "output/Channel.h"
#include "output/OsError.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {

std::function<Patience()> beginPatience;

}  // namespace

void SetPatience(std::function<Patience()> begin) {
    beginPatience = std::move(begin);
}

QString WaitsForPrinter(const QString& port, const QString& where) {
    return u"Waiting for the printer on %1 (%2).\nIs it switched on, with paper in and its cover closed?"_s.arg(port,
                                                                                                                where);
}

Wait::Wait(WaitWords words, int limit)
    : words_(std::move(words)), limit_(limit), patience_(beginPatience ? beginPatience() : Patience{}) {
    sinceMove_.start();
}

void Wait::GoOn(qint64 position) {
    if (std::exchange(position_, position) != position) sinceMove_.restart();
    if (sinceMove_.hasExpired(limit_)) ThrowOsError(words_.error, ETIMEDOUT);
    if (patience_ && !patience_(words_.waitsFor + u"\nLeaving ends the program; what is stored stays stored."_s))
        throw OutputError(values::DeviceError, words_.error + u": the wait for it was left."_s);
}

}  // namespace output
