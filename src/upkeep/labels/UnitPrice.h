#pragma once

#include <QString>
#include <optional>

#include "values/Money.h"

// What a kilogram or a litre of a product costs, as a shelf label has to tell.
namespace upkeep {

enum class Measure { Kilogram, Litre };

struct Content {
    Measure measure = Measure::Kilogram;
    qint64 millionths = 0;  // of the measure

    bool operator==(const Content&) const = default;
};

// Read from a name: "0,5 l", "250 g", "1.5L", "6x1,5 l", "0,33 l x 6". Nothing where there is none, where there are
// several ("250 g + 50 g"), or where it might mean something else ("1.500 g", "0,5 l 6/1").
std::optional<Content> ContentOf(const QString& name);
// Of a unit by which goods are weighed or measured themselves.
std::optional<Measure> MeasureOfUnit(const QString& unit);

struct UnitPrice {
    Measure measure = Measure::Kilogram;
    values::Money price;      // rounded to two decimals, half away from zero
    bool isThePrice = false;  // sold by the measure itself
};

// Nothing where the content can't be read, or the price is not above zero.
std::optional<UnitPrice> UnitPriceOf(const QString& name, const QString& unit, values::Money price);

}  // namespace upkeep
