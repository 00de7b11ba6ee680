// A server behind a cable that adds two milliseconds to every way there and back.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <algorithm>
#include <cstdio>

#include "bench/Figures.h"
#include "bench/Lookup.h"
#include "bench/PostingTill.h"
#include "support/Proxy.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

constexpr std::chrono::milliseconds Distance{2};
constexpr int LineCount = 20;
constexpr int Rounds = 3;
constexpr double LongestPosting = 500;  // milliseconds
constexpr int Patience = 60'000;        // milliseconds

struct Cost {
    double milliseconds;
    int trips;
};

// The median of some rounds, behind one that prepares the statements.
Cost CostOf(const drivers::Proxy& cable, const Work& work) {
    work();
    std::vector<double> times;
    const int before = cable.RoundTrips();
    for (int round = 0; round < Rounds; ++round) {
        QElapsedTimer time;
        time.start();
        work();
        times.push_back(static_cast<double>(time.nsecsElapsed()) / 1e6);
    }
    std::ranges::sort(times);
    return {times[times.size() / 2], (cable.RoundTrips() - before) / Rounds};
}

Cost CostOfPosting(const drivers::Proxy& cable, const ServerShop& shop, const QString& folder) {
    Invoices invoice(shop.Big().Products(), LineCount);
    PostingTill till(folder, invoice.Period());
    return CostOf(cable, [&] {
        invoice.Next();
        till.Post(invoice);
        return qint64{invoice.Commits()};
    });
}

// From the start of the program to its sales screen; -1 when it fails.
int TripsToTheSalesScreen(const drivers::Proxy& cable, const QString& folder) {
    const int before = cable.RoundTrips();
    QProcess till;
    till.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    till.start(QCoreApplication::applicationDirPath() + u"/bench-till"_s, {folder});
    if (!till.waitForFinished(Patience) || till.exitCode() != 0) return -1;
    return cable.RoundTrips() - before;
}

}  // namespace

bool PrintFarServer(const ServerShop& shop) {
    drivers::Proxy cable(shop.Server());
    cable.Delay(Distance);
    const QString address = cable.Through(shop.SellingAddress());
    const QString folder = shop.FolderFor(address);
    const Cost lookup = CostOf(cable, LookUp(store::Place::Server(address), shop.Big()));
    const Cost posting = CostOfPosting(cable, shop, folder);
    const int start = TripsToTheSalesScreen(cable, folder);
    std::printf(
        "a server %d ms away: %d lines are posted in %.0f ms and %d round trips%s, a product is found in %.1f ms and "
        "%d, the program comes to its sales screen in %d\n",
        static_cast<int>(Distance.count()), LineCount, posting.milliseconds, posting.trips,
        posting.milliseconds > LongestPosting ? " (MISSED)" : "", lookup.milliseconds, lookup.trips, start);
    return start >= 0;
}

}  // namespace bench
