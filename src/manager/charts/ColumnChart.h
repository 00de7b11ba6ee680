#pragma once

#include "manager/charts/Chart.h"
#include "manager/charts/Scale.h"

namespace manager {

// Amounts side by side, beside those that they are compared with: as bars, or as lines where there would be too many.
class ColumnChart : public Chart {
    Q_OBJECT

public:
    struct Column {
        QString label;  // below it
        QString name;   // in words and in the table
        values::Money amount;
        values::Money before;
    };
    struct Content {
        QString heading;  // what the columns are
        QString amountName;
        QString beforeName;  // empty when there is nothing to compare with
        std::vector<Column> columns;
    };
    static constexpr size_t MostBars = 31;

    explicit ColumnChart(QWidget* parent);

    void Show(Content content);
    const Content& Shown() const { return content_; }

    ChartTable Table() const override;
    int Marks() const override;
    QString MarkText(int mark) const override;

protected:
    void Legend(QPainter& painter, const QRectF& head, const ChartLook& look) const override;
    void PaintMarks(QPainter& painter, const QRectF& body, const ChartLook& look, int lit) const override;
    QRectF MarkPlace(const QRectF& body, const ChartLook& look, int mark) const override;
    int MarkIn(const QRectF& body, const ChartLook& look, QPointF point) const override;

private:
    bool HasBefore() const { return !content_.beforeName.isEmpty(); }
    QRectF PlotOf(const QRectF& body, const ChartLook& look) const;
    void PaintAxes(QPainter& painter, const QRectF& body, const QRectF& plot, const ChartLook& look) const;
    void PaintBars(QPainter& painter, const QRectF& plot, const ChartLook& look, int lit) const;
    void PaintLines(QPainter& painter, const QRectF& plot, const ChartLook& look, int lit) const;

    Content content_;
    Scale scale_{{}, {}};
};

}  // namespace manager
