#include "manager/WorkBeside.h"

#include <QThread>
#include <atomic>
#include <mutex>
#include <thread>

#include "forms/LongWork.h"

namespace manager {

namespace {

constexpr unsigned long BetweenLooks = 10;  // milliseconds

struct Shared {
    std::mutex use;
    QString doing;
    std::atomic<bool> isWanted = true;
    std::atomic<bool> isDone = false;
    std::exception_ptr failure;
};

}  // namespace

void WorkBeside(QWidget* form, const std::function<void(const upkeep::Progress&)>& work) {
    Shared shared;
    std::jthread thread([&] {
        try {
            work([&shared](const QString& doing) {
                const std::lock_guard lock(shared.use);
                shared.doing = doing;
                return shared.isWanted.load();
            });
        } catch (...) {
            shared.failure = std::current_exception();
        }
        shared.isDone = true;
    });
    forms::LongWork notice(form);
    while (!shared.isDone) {
        shared.use.lock();
        const QString doing = shared.doing + QStringLiteral(" ...");
        shared.use.unlock();
        if (!notice.GoesOn(doing)) shared.isWanted = false;
        QThread::msleep(BetweenLooks);
    }
    thread.join();
    if (shared.failure) std::rethrow_exception(shared.failure);
}

}  // namespace manager
