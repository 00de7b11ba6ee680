#include "values/CashSums.h"

#include <algorithm>

namespace values {

namespace {

constexpr qint64 Notes[] = {5, 10, 20, 50, 100, 200};
constexpr qsizetype Most = 4;
// From here on nobody fills up to a five.
constexpr qint64 LargeTotal = 100;

qint64 NextMultiple(Money total, qint64 note) {
    const qint64 unit = note * Money::Scale;
    return (total.Units() / unit + (total.Units() % unit == 0 ? 0 : 1)) * note;
}

}  // namespace

QList<Money> CashSums(Money total) {
    if (total <= Money() || total > Money::FromWhole(1'000'000)) return {};
    QList<Money> sums;
    const auto add = [&](qint64 whole) { sums << Money::FromWhole(whole); };
    const bool isLarge = total >= Money::FromWhole(LargeTotal);
    for (const qint64 filledUp : {qint64{5}, qint64{10}, qint64{50}, qint64{100}})
        if (isLarge ? filledUp != 5 : filledUp <= 10) add(NextMultiple(total, filledUp));
    for (const qint64 note : Notes) add(note);
    std::ranges::sort(sums);
    const auto [first, last] = std::ranges::unique(sums);
    sums.erase(first, last);
    sums.removeIf([&](Money sum) { return sum <= total; });
    sums.prepend(total);
    return sums.first(std::min(sums.size(), Most));
}

}  // namespace values
