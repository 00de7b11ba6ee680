#pragma once

#include <QElapsedTimer>
#include <QString>
#include <chrono>
#include <functional>
#include <future>
#include <thread>

namespace output {

// Asked many times a second while output waits, with what it waits for; false gives the output up.
using Patience = std::function<bool(const QString& waitsFor)>;
// `begin` is called as a wait begins; what it gives lives as long as the wait. Without it a wait goes to its limit.
void SetPatience(std::function<Patience()> begin);

// What a wait is for, in words: its error as a sentence of a name and a reason ("Cannot write to %1: %2."), and what
// the user is told meanwhile.
struct WaitWords {
    QString error;
    QString waitsFor;
    QString name = {};
};

// What the user is told of a printer that takes its time; `where` is its device or address.
QString WaitsForPrinter(const QString& port, const QString& where);

// A wait of output for something that may never come. It ends with an OutputError when nothing has moved for `limit`
// milliseconds, or when the user does not want to wait any longer.
class Wait {
public:
    Wait(WaitWords words, int limit);

    // To be called every few milliseconds; whatever `position` counts, a change of it is progress.
    void GoOn(qint64 position = 0);

    // Runs what may block beside the program's own thread. It has to own all that it touches: when the wait fails it is
    // left behind.
    template <typename Work>
    auto For(Work work, const std::function<qint64()>& position = {}) {
        std::packaged_task<std::invoke_result_t<Work>()> task(std::move(work));
        auto result = task.get_future();
        std::thread(std::move(task)).detach();
        while (result.wait_for(std::chrono::milliseconds(20)) != std::future_status::ready)
            GoOn(position ? position() : 0);
        return result.get();
    }

private:
    const WaitWords words_;
    const int limit_;
    qint64 position_ = 0;
    QElapsedTimer sinceMove_;
    Patience patience_;
};

}  // namespace output
