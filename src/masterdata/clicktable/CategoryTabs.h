#pragma once

#include <QTabWidget>

// Tabs that share the width of their strip: each has its caption whole where there is room, in smaller type if need be;
// where there is not, the longest ones give way first.
class CategoryTabs : public QTabWidget {
    Q_OBJECT

public:
    explicit CategoryTabs(QWidget* parent = nullptr);

    // To be called when captions have changed.
    void Share();

protected:
    void resizeEvent(QResizeEvent* event) override;
};
