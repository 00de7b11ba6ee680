// What the running till takes of the machine's memory.

#include <QCoreApplication>
#include <QProcess>
#include <cstdio>
#include <optional>

#include "bench/Figures.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

constexpr int Patience = 120'000;  // milliseconds

struct Memory {
    double resident;      // MiB, shared libraries counted in full
    double proportional;  // MiB, what is shared divided among those who share it
};

// The programs print both in kB as their last line.
std::optional<Memory> MemoryOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationDirPath() + u'/' + program, arguments);
    if (!process.waitForFinished(Patience) || process.exitCode() != 0) return {};
    const QList<QByteArray> numbers = process.readAllStandardOutput().trimmed().split('\n').last().split(' ');
    if (numbers.size() != 2) return {};
    return Memory{numbers[0].toDouble() / 1024, numbers[1].toDouble() / 1024};
}

}  // namespace

bool PrintMemory(const QString& till, int invoices) {
    const auto ours = MemoryOf(u"bench-till"_s, {till, QString::number(invoices)});
    const auto empty = MemoryOf(u"bench-empty"_s, {u"--memory"_s});
    if (!ours || !empty) {
        std::printf("FAILED memory of the till: a program ended early\n");
        return false;
    }
    std::printf(
        "memory of the till after %d invoices: RSS %.1f MiB, PSS %.1f MiB; empty window: RSS %.1f MiB, "
        "PSS %.1f MiB; ratio %.2fx, %.2fx\n",
        invoices, ours->resident, ours->proportional, empty->resident, empty->proportional,
        ours->resident / empty->resident, ours->proportional / empty->proportional);
    return true;
}

}  // namespace bench
