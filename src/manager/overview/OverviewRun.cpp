#include "manager/overview/OverviewRun.h"

#include "output/Folder.h"
#include "store/StorePath.h"

namespace manager {

OverviewRun::OverviewRun(QObject* parent) : QObject(parent) {}

OverviewRun::~OverviewRun() {
    Stop();
}

void OverviewRun::Begin(const upkeep::OverviewWish& wish) {
    Stop();
    isRunning_ = true;
    thread_ = std::jthread([this, wish, run = run_](const std::stop_token& stop) { Work(stop, wish, run); });
}

void OverviewRun::Stop() {
    if (thread_.joinable()) {
        thread_.request_stop();
        thread_.join();
    }
    ++run_;  // what was handed over until now is not taken in any more
    latest_.reset();
    fault_.clear();
    hasEnded_ = false;
    isRunning_ = false;
}

void OverviewRun::WaitFor(std::chrono::milliseconds atMost) {
    std::unique_lock lock(handing_);
    if (!isRunning_ || !handed_.wait_for(lock, atMost, [this] { return hasEnded_; })) return;
    lock.unlock();
    TakeIn(run_);
}

// The thread's part.
void OverviewRun::Work(const std::stop_token& stop, const upkeep::OverviewWish& wish, int run) {
    const auto tell = [this, run] {
        QMetaObject::invokeMethod(
            this, [this, run] { TakeIn(run); }, Qt::QueuedConnection);
    };
    QString fault;
    try {
        // Open no longer than it is read, for a restore needs the shop alone.
        const auto main = store::OpenMain(output::ProgramFolder());
        const store::Watch watch(*main, [&stop] { return !stop.stop_requested(); });
        auto whole = upkeep::ReadOverview(*main, wish, [&](const upkeep::Overview& overview) {
            Hand(std::make_shared<const upkeep::Overview>(overview));
            tell();
            return !stop.stop_requested();
        });
        Hand(std::make_shared<const upkeep::Overview>(std::move(whole)));
    } catch (const values::Error& error) {
        fault = error.Description();
    }
    const std::lock_guard lock(handing_);
    fault_ = fault;
    hasEnded_ = true;
    handed_.notify_all();
    tell();
}

void OverviewRun::Hand(std::shared_ptr<const upkeep::Overview> overview) {
    const std::lock_guard lock(handing_);
    latest_ = std::move(overview);
}

void OverviewRun::TakeIn(int run) {
    if (run != run_) return;
    std::unique_lock lock(handing_);
    const auto overview = std::exchange(latest_, {});
    const bool ends = hasEnded_ && isRunning_;
    if (ends) isRunning_ = false;
    const QString fault = fault_;
    lock.unlock();
    if (overview) Q_EMIT Told(*overview);
    if (ends) Q_EMIT Ended(fault);
}

}  // namespace manager
