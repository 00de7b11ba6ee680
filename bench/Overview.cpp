// bench-overview DATA-FOLDER: how long the owner's overview takes of a shop that sold three million lines in ten years.

#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "bench/Shop.h"
#include "store/StorePath.h"
#include "upkeep/Overview.h"

namespace {

constexpr bench::ShopSize OldShop{5'000, 3'000'000, 3'650};
constexpr int Times = 9;

// The median of some times, in milliseconds, on a store that is open already.
void Measure(store::Database& main, const char* name, const upkeep::OverviewWish& wish, int times) {
    std::vector<double> each;
    qint64 invoices = 0;
    qint64 firstTold = 0;
    for (int i = 0; i < times; ++i) {
        QElapsedTimer timer;
        timer.start();
        firstTold = 0;
        invoices = upkeep::ReadOverview(main, wish, [&](const auto&) {
                       if (firstTold == 0) firstTold = timer.elapsed();
                       return true;
                   }).takings.invoices;
        each.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::ranges::sort(each);
    std::printf("%-16s %9.1f ms, first figures after %lld ms, %lld invoices\n", name, each[each.size() / 2],
                static_cast<long long>(firstTold), static_cast<long long>(invoices));
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc != 2) return 2;
    const bench::Shop shop(QString::fromLocal8Bit(argv[1]), OldShop);
    const auto main = store::Database::Open(store::MainPlace(shop.Folder()), store::MainSchema());
    const QDate today = bench::Shop::LastDay();
    Measure(*main, "today", {today, {today, today}, {}}, Times);
    Measure(*main, "a month", {today, upkeep::MonthOf(today), {}}, Times);
    Measure(*main, "a year", {today, {{today.year(), 1, 1}, today}, {}}, 3);
    Measure(*main, "ten years", {today, {}, {}}, 1);
}
