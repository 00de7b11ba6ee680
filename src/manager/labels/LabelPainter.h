#pragma once

#include <QPainter>

#include "manager/labels/Modules.h"
#include "upkeep/labels/ShelfGoods.h"

namespace manager {

class Dots;

// What stands on a label, in the user's words and figures.
struct LabelFacts {
    QString name;
    QString price;                    // "1.60"
    QString currency;                 // "KM"
    QString unit;                     // "per pcs"
    QString unitPrice;                // "1 l = 3.20 KM"; empty where it can't be told, or is the price
    bool isUnitPriceUnknown = false;  // there should be one, and the name doesn't tell how much is in it
    QString code;
    upkeep::Barcode barcode = upkeep::Barcode::None;
    int modules = 0;  // of the bars with their quiet zones; 0 where there are none
};

LabelFacts FactsOf(const upkeep::ShelfGood& good, const QString& currency);

// The dots that a module of these bars gets in so many parts: as many as fit, up to what a scanner likes best. 0 where
// even the narrowest that it reads is too wide.
int ModuleDots(const Dots& dots, upkeep::Barcode kind, int modules, int width);

// Fills a place on the paper, in parts of dots and at whole ones: the name above, the price large, the bars below.
void PaintLabel(QPainter& painter, const Dots& dots, const QRect& place, const LabelFacts& facts);

// Whether PaintLabel has bars for it there.
bool HasBars(const Dots& dots, const QRect& place, const LabelFacts& facts);

}  // namespace manager
