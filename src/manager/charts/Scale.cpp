#include "manager/charts/Scale.h"

#include <algorithm>
#include <cmath>

namespace manager {

using values::Money;

namespace {

constexpr qint64 Cent = Money::Scale / 100;
constexpr qint64 MostSteps = 5;

// The smallest handsome step of which so many span the distance.
qint64 StepFor(qint64 distance) {
    const qint64 least = (distance + MostSteps - 1) / MostSteps;
    for (qint64 power = Cent;; power *= 10)
        for (const qint64 factor : {1, 2, 5})
            if (factor * power >= least) return factor * power;
}

// Downwards also below zero.
qint64 StepsBelow(qint64 units, qint64 step) {
    return units / step - (units % step < 0 ? 1 : 0);
}

}  // namespace

Scale::Scale(Money lowest, Money highest) {
    // A shop that takes more than this in one bar has other worries; sums of both ends must fit.
    constexpr qint64 farthest = 1'000'000'000'000'000'000;
    const qint64 low = std::clamp<qint64>(std::min(lowest.Units(), qint64{0}), -farthest, 0);
    const qint64 high = std::clamp<qint64>(std::max(highest.Units(), qint64{0}), 0, farthest);
    const qint64 step = StepFor(std::max(high - low, Cent));
    step_ = Money::FromUnits(step);
    bottom_ = Money::FromUnits(StepsBelow(low, step) * step);
    top_ = Money::FromUnits(std::max(-StepsBelow(-high, step) * step, low < 0 ? 0 : step));
}

std::vector<Money> Scale::Steps() const {
    std::vector<Money> steps;
    for (Money at = bottom_; at <= top_; at += step_) steps.push_back(at);
    return steps;
}

double Scale::PartOf(Money amount) const {
    const auto part = [this](Money at) {
        return static_cast<double>(at.Units()) - static_cast<double>(bottom_.Units());
    };
    return std::clamp(part(amount) / part(top_), 0.0, 1.0);
}

int PlaceIn(double left, double width, int places, double x) {
    if (places <= 0 || width <= 0 || x < left || x >= left + width) return -1;
    return std::min(static_cast<int>((x - left) / width * places), places - 1);
}

int EveryHowMany(double width, int places, double labelWidth) {
    if (places <= 0 || width <= 0) return 1;
    return std::max(1, static_cast<int>(std::ceil(labelWidth * places / width)));
}

}  // namespace manager
