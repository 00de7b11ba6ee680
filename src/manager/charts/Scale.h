#pragma once

#include <QRectF>
#include <vector>

#include "values/Money.h"

namespace manager {

// The axis of amounts: from the lowest to the highest that are to be shown, zero among them, in steps of 1, 2 or 5
// times a power of ten, so that there are three to six of them.
class Scale {
public:
    Scale(values::Money lowest, values::Money highest);

    values::Money Bottom() const { return bottom_; }
    values::Money Top() const { return top_; }
    std::vector<values::Money> Steps() const;
    // Where an amount lies between bottom (0) and top (1).
    double PartOf(values::Money amount) const;

private:
    values::Money step_, bottom_, top_;
};

// Which of so many places beside one another in a row a point lies in; -1 beyond them.
int PlaceIn(double left, double width, int places, double x);
// Every how many labels of that width can be written in so many places.
int EveryHowMany(double width, int places, double labelWidth);

}  // namespace manager
