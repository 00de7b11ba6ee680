#pragma once

#include <QObject>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

#include "upkeep/Overview.h"

namespace manager {

// Reads the overview beside the window, on a connection of its own.
class OverviewRun : public QObject {
    Q_OBJECT

public:
    explicit OverviewRun(QObject* parent);
    ~OverviewRun() override;

    // Stops the run before.
    void Begin(const upkeep::OverviewWish& wish);
    void Stop();
    bool IsRunning() const { return isRunning_; }
    // Gives it a moment to end, so that what is quick is shown at once.
    void WaitFor(std::chrono::milliseconds atMost);

Q_SIGNALS:
    void Told(const upkeep::Overview& overview);
    // An empty fault when it came to its end; a run that was stopped says nothing more.
    void Ended(const QString& fault);

private:
    void Work(const std::stop_token& stop, const upkeep::OverviewWish& wish, int run);
    void Hand(std::shared_ptr<const upkeep::Overview> overview);
    void TakeIn(int run);

    std::mutex handing_;
    std::condition_variable handed_;
    std::shared_ptr<const upkeep::Overview> latest_;
    QString fault_;
    bool hasEnded_ = false;
    int run_ = 0;
    bool isRunning_ = false;
    std::jthread thread_;
};

}  // namespace manager
