#pragma once

#include <QStringList>
#include <vector>

#include "manager/charts/Chart.h"
#include "output/PageDevice.h"

namespace manager {

// The overview as it is printed: its heads, the figures in boxes, and the charts below their titles.
struct OverviewPaper {
    struct Box {
        QString title;
        QString figure;
        QStringList notes;
    };
    struct Plate {
        QString title;
        const Chart* chart;
        double height;  // in pixels of a page 760 pixels wide
        int columns;    // of the three that a page has
    };
    QString title;
    QString subtitle;
    std::vector<Box> boxes;
    std::vector<Plate> plates;

    // Goes on on further pages where one is too low.
    void PaintOn(output::PageDevice& pages) const;
};

}  // namespace manager
