// From the start of a process to its first painted window.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <stdexcept>

#include "bench/Figures.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

constexpr int Patience = 20'000;  // milliseconds
constexpr int StartsEach = 5;

qint64 TimeToPaint(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QElapsedTimer timer;
    timer.start();
    process.start(QCoreApplication::applicationDirPath() + u'/' + program, arguments);
    const bool painted = process.waitForReadyRead(Patience);
    const qint64 elapsed = timer.nsecsElapsed();
    if (!painted || !process.waitForFinished(Patience) || process.exitCode() != 0)
        throw std::runtime_error((program + u" showed no window"_s).toStdString());
    return elapsed;
}

}  // namespace

Figure StartupFigure(const QString& till) {
    return {.name = "process start to login painted",
            .ours = [till] { return [till] { return TimeToPaint(u"bench-login"_s, {till}); }; },
            .yardsticks = {{"empty window", [] { return [] { return TimeToPaint(u"bench-empty"_s, {}); }; }, 1.5},
                           {"window with one line of text",
                            [] { return [] { return TimeToPaint(u"bench-empty"_s, {u"--text"_s}); }; }}},
            .iterations = StartsEach,
            .timesItself = true};
}

}  // namespace bench
