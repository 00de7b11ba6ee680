// Registers of one shop that post at the same time, each a process, beside as many that are written by hand, and beside
// commits of nothing but a row.

#include <QCoreApplication>
#include <QProcess>
#include <stdexcept>

#include "bench/Figures.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

constexpr int Patience = 60'000;  // milliseconds

class Process {
public:
    Process(const QString& who, const QString& place, int number, int products, double seconds) {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QCoreApplication::applicationDirPath() + u"/bench-register"_s,
                       {who, place, QString::number(number), QString::number(products), QString::number(seconds)});
    }
    void WaitUntilReady() {
        while (!process_.canReadLine())
            if (!process_.waitForReadyRead(Patience)) throw std::runtime_error("a register is not ready");
        process_.readLine();
    }
    void Begin() {
        process_.write("go\n");
        // Else it is written when the end is waited for, one register after the other.
        if (!process_.waitForBytesWritten(Patience)) throw std::runtime_error("a register does not listen");
    }
    int Posted() {
        if (!process_.waitForFinished(Patience) || process_.exitCode() != 0)
            throw std::runtime_error("a register ended early");
        return process_.readAllStandardOutput().trimmed().toInt();
    }

private:
    QProcess process_;
};

// Gives the nanoseconds an invoice.
Work AllAtOnce(const QString& who, const QString& place, int count, int products, double seconds) {
    return [=] {
        std::vector<std::unique_ptr<Process>> registers;
        for (int number = 0; number < count; ++number)
            registers.push_back(std::make_unique<Process>(who, place, number, products, seconds));
        for (const auto& one : registers) one->WaitUntilReady();
        for (const auto& one : registers) one->Begin();
        int posted = 0;
        for (const auto& one : registers) posted += one->Posted();
        return static_cast<qint64>(1e9 * seconds / posted);
    };
}

}  // namespace

Figure RegistersFigure(const ServerShop& shop, int count, double seconds) {
    const int products = shop.Big().Size().products;
    const auto byHand = [&shop, count, products, seconds](const QString& who) {
        return AllAtOnce(who, shop.SellingAddress(), count, products, seconds);
    };
    return {.name = "server: " + std::to_string(count) + " registers, an invoice of 5 lines",
            .ours =
                [&shop, count, products, seconds] {
                    return AllAtOnce(u"ours"_s, shop.FolderFor(shop.SellingAddress()), count, products, seconds);
                },
            .yardsticks = {{"the same statements by hand in libpq", [byHand] { return byHand(u"hand"_s); }, 1.3},
                           {"the commit of a single row", [byHand] { return byHand(u"rows"_s); }}},
            .warmUp = 0,
            .iterations = 1,
            .repetitions = 5,
            .timesItself = true};
}

}  // namespace bench
