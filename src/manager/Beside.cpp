#include "manager/Beside.h"

#include <atomic>
#include <chrono>
#include <future>
#include <mutex>

#include "forms/LongWork.h"

namespace manager {

namespace {

constexpr std::chrono::milliseconds BetweenLooks{30};

}  // namespace

void RunBeside(QWidget* page, const QString& doing, const std::function<void(const upkeep::Progress&)>& work) {
    std::mutex mutex;
    QString told = doing;
    std::atomic<bool> goesOn = true;
    const upkeep::Progress progress = [&](const QString& now) {
        const std::lock_guard lock(mutex);
        told = now;
        return goesOn.load();
    };
    auto done = std::async(std::launch::async, [&] { work(progress); });
    forms::LongWork notice(doing, page);
    while (done.wait_for(BetweenLooks) != std::future_status::ready) {
        const QString now = [&] {
            const std::lock_guard lock(mutex);
            return told;
        }();
        if (!notice.GoesOn(now)) goesOn = false;
    }
    done.get();
}

}  // namespace manager
