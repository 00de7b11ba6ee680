#pragma once

#include <QFrame>

#include "forms/ListView.h"
#include "manager/charts/Chart.h"

class QLabel;
class QStackedLayout;

namespace manager {

// A chart below its title, in whose place its figures can be listed.
class ChartPanel : public QFrame {
    Q_OBJECT
    Q_PROPERTY(QString heading READ Heading WRITE SetHeading)

public:
    explicit ChartPanel(QWidget* parent);

    // Takes its place once.
    template <typename T>
    T* Hold(const QString& name) {
        auto* chart = new T(this);
        Take(chart, name);
        return chart;
    }
    QString Heading() const;
    void SetHeading(const QString& heading);
    Chart& Held() const { return *chart_; }

    // Of the panel while it shows the chart; a table may need more.
    void SetLeastHeight(int height);
    void ShowAsTable(bool asTable);
    // To be called when the chart shows other figures.
    void FiguresChanged();

private:
    void Take(Chart* chart, const QString& name);
    void FillList();

    QLabel* title_;
    QStackedLayout* stack_;
    Chart* chart_ = nullptr;
    forms::ListView* list_;
};

}  // namespace manager
