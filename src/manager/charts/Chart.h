#pragma once

#include <QPainter>
#include <QWidget>

#include "manager/charts/ChartLook.h"
#include "manager/charts/ChartTable.h"

namespace manager {

// A chart: figures painted as marks that the mouse and the arrow keys go through. The one that is pointed at, else the
// one with the focus, is told in the head line; a click or Enter chooses it.
class Chart : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString figure READ Figure)

public:
    explicit Chart(QWidget* parent);

    // On any painter, within a place of its pixels.
    void PaintOn(QPainter& painter, const QRectF& place, const ChartLook& look) const;
    virtual ChartTable Table() const = 0;

    // Of the marks as they are painted, from 0.
    virtual int Marks() const = 0;
    // What a mark stands for, in words.
    virtual QString MarkText(int mark) const = 0;
    int MarkAt(QPointF point) const;
    // The one that the keys have reached; -1 before there was a figure.
    int Current() const { return current_; }
    QString Figure() const;

    void SetEmptyText(const QString& text);

Q_SIGNALS:
    void Chosen(int mark);

protected:
    // The part of a place below its head line.
    QRectF BodyOf(const QRectF& place, const ChartLook& look) const;
    // To be called when other figures are shown.
    void FiguresChanged();

    virtual void Legend(QPainter&, const QRectF&, const ChartLook&) const {}
    virtual bool HasHeadLine() const { return true; }
    virtual void PaintMarks(QPainter& painter, const QRectF& body, const ChartLook& look, int lit) const = 0;
    virtual QRectF MarkPlace(const QRectF& body, const ChartLook& look, int mark) const = 0;
    virtual int MarkIn(const QRectF& body, const ChartLook& look, QPointF point) const;
    // The neighbour in the direction of a key; -1 where the key has no meaning.
    virtual int Neighbour(int mark, int key) const;

    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void GoTo(int mark);
    int Lit() const;
    void PaintWith(QPainter& painter, const QRectF& place, const ChartLook& look, int lit, bool isOnScreen) const;
    QRectF ContentPlace() const;

    int current_ = -1;
    int pointedAt_ = -1;
    int pressed_ = -1;
    QString emptyText_;
};

}  // namespace manager
