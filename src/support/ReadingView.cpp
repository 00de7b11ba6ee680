#include "support/ReadingView.h"

#include <QScrollBar>
#include <QScroller>

namespace {

constexpr int WidestColumn = 660;
constexpr int Margin = 24;

}  // namespace

ReadingView::ReadingView(QWidget* parent) : QTextBrowser(parent) {
    setOpenLinks(false);
    // The first one took its looks before this was a view of its kind.
    setVerticalScrollBar(new QScrollBar);
    document()->setDocumentMargin(Margin);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QScroller::grabGesture(viewport(), QScroller::TouchGesture);
}

void ReadingView::resizeEvent(QResizeEvent* event) {
    const int room = contentsRect().width() - verticalScrollBar()->sizeHint().width();
    const int rest = qMax(0, (room - WidestColumn - 2 * Margin) / 2);
    setViewportMargins(rest, 0, rest, 0);
    QTextBrowser::resizeEvent(event);
}
