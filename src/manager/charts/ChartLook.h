#pragma once

#include <QColor>
#include <QFont>

namespace manager {

// What charts are painted with, on the screen as the theme has it and on paper.
struct ChartLook {
    QColor ground;
    QColor ink;
    QColor muted;
    QColor line;
    QColor accent;
    QFont text;

    static ChartLook OfTheme();
    static ChartLook OfPaper();

    // The accent as strong as that: 0 is the ground, 1 the accent itself.
    QColor Tint(double strength) const;
};

}  // namespace manager
