#pragma once

#include <QObject>
#include <QPoint>
#include <functional>

class QAbstractScrollArea;
class QMouseEvent;

namespace forms {

// How long a finger stays that means the right button of a mouse, in milliseconds.
inline constexpr int LongPress = 600;
// Whether a finger, or a mouse, that came down at one place and left at the other has pressed there, and not drawn.
bool IsTap(const QPointF& down, const QPointF& up);

// Lets a finger draw the content of an area up and down. What is drawn is neither pressed nor selected.
class Swipe : public QObject {
    Q_OBJECT

public:
    // `drawn` hears that a press has turned out to be the start of a swipe.
    Swipe(QAbstractScrollArea* area, std::function<void()> drawn);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Move(const QMouseEvent& event);

    QAbstractScrollArea* area_;
    std::function<void()> drawn_;
    QPointF down_;
    QPoint from_;  // where the scroll bars stood
    bool isDown_ = false;
    bool isDrawn_ = false;
};

}  // namespace forms
