#pragma once

#include "manager/charts/Chart.h"

namespace manager {

// Amounts by row and column, the darker the more.
class HeatMap : public Chart {
    Q_OBJECT

public:
    struct Content {
        QString rowHeading;
        QString columnHeading;
        QString amountName;
        QStringList rows;       // in words and in the table
        QStringList rowLabels;  // beside them
        QStringList columns;    // in words and in the table
        QStringList columnLabels;
        std::vector<values::Money> cells;  // row by row
    };

    explicit HeatMap(QWidget* parent);

    void Show(Content content);

    ChartTable Table() const override;
    int Marks() const override { return static_cast<int>(content_.cells.size()); }
    QString MarkText(int mark) const override;
    int RowOf(int mark) const { return mark / Columns(); }
    int ColumnOf(int mark) const { return mark % Columns(); }

protected:
    void PaintMarks(QPainter& painter, const QRectF& body, const ChartLook& look, int lit) const override;
    QRectF MarkPlace(const QRectF& body, const ChartLook& look, int mark) const override;
    int Neighbour(int mark, int key) const override;

private:
    int Columns() const { return static_cast<int>(content_.columns.size()); }
    QRectF GridOf(const QRectF& body, const ChartLook& look) const;

    Content content_;
    values::Money highest_;
};

}  // namespace manager
