#pragma once

#include <QWidget>
#include <vector>

namespace manager {

// A simple chart, painted in the colours of the theme. The mouse and the arrow keys go through its figures; the one in
// front is told in words below the chart, and a click or Enter chooses it.
class Chart : public QWidget {
    Q_OBJECT

public:
    enum class Kind {
        Bars,     // a row each: name, bar, figure
        Columns,  // side by side over their names; `before` as a line
        Heat      // a grid, darker where there is more
    };
    struct Figure {
        QString name;
        double value = 0;    // 0 and more
        QString told;        // the figure in words
        double before = -1;  // what it is compared with; below 0: nothing
    };

    explicit Chart(QWidget* parent = nullptr);

    void SetKind(Kind kind, int columns = 0);  // of a heat map
    // Names beside the rows and above the columns of a heat map.
    void SetHeads(const QStringList& rows, const QStringList& columns);
    void SetFigures(std::vector<Figure> figures);
    void SetEmptyText(const QString& text);

    int Count() const { return static_cast<int>(figures_.size()); }
    const Figure& At(int figure) const { return figures_[static_cast<size_t>(figure)]; }
    // Where a figure is painted, and which one a point lies on; -1 for none.
    QRect PlaceOf(int figure) const;
    int FigureAt(const QPoint& point) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void Chosen(int figure);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void PaintBars(QPainter& painter) const;
    void PaintColumns(QPainter& painter) const;
    void PaintHeat(QPainter& painter) const;
    void PaintTold(QPainter& painter) const;
    void BringToFront(int figure);
    QRect Room() const;  // without the line of words
    int LineHeight() const;
    int NameWidth() const;

    Kind kind_ = Kind::Bars;
    int columns_ = 24;
    QStringList rowHeads_, columnHeads_;
    std::vector<Figure> figures_;
    double most_ = 0;
    int front_ = -1;
    QString emptyText_;
};

}  // namespace manager
