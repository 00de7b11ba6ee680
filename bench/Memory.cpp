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
    double growth;        // MiB, of the resident memory since the first hundred invoices
};

// The programs print so many numbers as their last line; nothing when one fails.
QList<double> NumbersOf(const QString& program, const QStringList& arguments, int count) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationDirPath() + u'/' + program, arguments);
    if (!process.waitForFinished(Patience) || process.exitCode() != 0) return {};
    QList<double> numbers;
    for (const QByteArray& number : process.readAllStandardOutput().trimmed().split('\n').last().split(' '))
        numbers += number.toDouble();
    return numbers.size() == count ? numbers : QList<double>();
}

// Both in kB.
std::optional<Memory> MemoryOf(const QString& program, const QStringList& arguments) {
    const QList<double> numbers = NumbersOf(program, arguments, 3);
    if (numbers.isEmpty()) return {};
    return Memory{numbers[0] / 1024, numbers[1] / 1024, numbers[2] / 1024};
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

bool PrintAllInvoices(const LateShop& shop) {
    const QList<double> numbers = NumbersOf(u"bench-invoices"_s, {shop.Get().Folder()}, 4);
    if (numbers.isEmpty()) {
        std::printf("FAILED the list of all invoices: the program ended early\n");
        return false;
    }
    std::printf(
        "list of %.0f invoices: RSS grows by %.1f MiB; it says that it takes a while after %.0f ms, and is left in "
        "%.0f ms at most (-1: it is done sooner)\n",
        numbers[0], numbers[1] / 1024, numbers[2], numbers[3]);
    return true;
}

}  // namespace bench
