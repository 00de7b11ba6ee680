#include "forms/Scrollable.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "forms/Swipe.h"

namespace forms {

namespace {

// As wide as its content and, while it is there, the bar.
class PanelArea : public QScrollArea {
public:
    explicit PanelArea(QWidget* panel) : QScrollArea(panel) {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setFocusPolicy(Qt::NoFocus);
        viewport()->setAutoFillBackground(false);
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
            if (now && widget()->isAncestorOf(now)) ensureWidgetVisible(now);
        });
        new Swipe(this, [] {});
    }

    QSize sizeHint() const override { return widget()->sizeHint().expandedTo(minimumSizeHint()); }
    QSize minimumSizeHint() const override {
        const int bar = verticalScrollBar()->isVisible() ? verticalScrollBar()->sizeHint().width() : 0;
        return {widget()->minimumSizeHint().width() + bar, 0};
    }

protected:
    // Its content may need another width now.
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
        return QScrollArea::eventFilter(watched, event);
    }
    void resizeEvent(QResizeEvent* event) override {
        QScrollArea::resizeEvent(event);
        updateGeometry();
    }
};

}  // namespace

void MakeScrollable(QWidget* panel) {
    auto* area = new PanelArea(panel);
    // Within the window all the time, so that the walk of the Tab key stays.
    auto* content = new QWidget(area);
    content->setLayout(panel->layout());
    area->setWidget(content);
    content->setAutoFillBackground(false);  // as the area would have it otherwise
    auto* around = new QVBoxLayout(panel);
    around->setContentsMargins(0, 0, 0, 0);
    around->addWidget(area);
}

}  // namespace forms
