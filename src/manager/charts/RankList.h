#pragma once

#include "manager/charts/Chart.h"

namespace manager {

// Names with their figures, the first ones painted with a bar each, as many as there is room for; all in the table.
class RankList : public Chart {
    Q_OBJECT

public:
    struct Row {
        QString name;
        QString figure;                    // beside it
        values::Money length;              // of its bar
        std::vector<values::Value> cells;  // in the table
    };
    struct Content {
        QStringList headings;
        std::vector<Row> rows;
        QList<int> numbers = {};  // as in a ChartTable
    };

    explicit RankList(QWidget* parent);

    void Show(Content content);
    // So many rows on paper, and the least on the screen.
    void SetRows(int rows);
    double HeightOf(int rows, const ChartLook& look) const;

    ChartTable Table() const override;
    int Marks() const override;
    QString MarkText(int mark) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {120, sizeHint().height()}; }

protected:
    bool HasHeadLine() const override { return false; }
    void PaintMarks(QPainter& painter, const QRectF& body, const ChartLook& look, int lit) const override;
    QRectF MarkPlace(const QRectF& body, const ChartLook& look, int mark) const override;

private:
    Content content_;
    int rowsShown_ = 6;
    values::Money longest_;
};

}  // namespace manager
