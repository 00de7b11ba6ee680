#include "output/Patience.h"

#include <cerrno>
#include <utility>

#include "output/Channel.h"
#include "output/OsError.h"
#include "output/Words.h"

namespace output {

namespace {

std::function<Patience()> beginPatience;

}  // namespace

void SetPatience(std::function<Patience()> begin) {
    beginPatience = std::move(begin);
}

QString WaitsForPrinter(const QString& port, const QString& where) {
    return Words::tr("Waiting for the printer on %1 (%2).\nIs it switched on, with paper in and its cover closed?")
        .arg(port, where);
}

Wait::Wait(WaitWords words, int limit)
    : words_(std::move(words)), limit_(limit), patience_(beginPatience ? beginPatience() : Patience{}) {
    sinceMove_.start();
}

void Wait::GoOn(qint64 position) {
    if (std::exchange(position_, position) != position) sinceMove_.restart();
    if (sinceMove_.hasExpired(limit_)) ThrowOsError(words_.error, words_.name, ETIMEDOUT);
    if (!patience_ ||
        patience_(Words::tr("%1\nLeaving ends the program; what is stored stays stored.").arg(words_.waitsFor)))
        return;
    //: stands behind "Cannot write to x: "
    throw OutputError(values::DeviceError, words_.error.arg(words_.name, Words::tr("the wait for it was left")));
}

}  // namespace output
