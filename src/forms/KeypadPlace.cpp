#include "forms/KeypadPlace.h"

namespace forms {

namespace {

constexpr int Gap = 8;

qint64 Area(const QRect& rect) {
    return rect.isEmpty() ? 0 : qint64{rect.width()} * rect.height();
}

qint64 Covered(const QRect& place, const QList<QRect>& controls) {
    qint64 sum = 0;
    for (const QRect& control : controls) sum += Area(place & control);
    return sum;
}

int Distance(const QRect& a, const QRect& b) {
    const int across = std::max({0, a.left() - b.right(), b.left() - a.right()});
    const int down = std::max({0, a.top() - b.bottom(), b.top() - a.bottom()});
    return across + down;
}

}  // namespace

QPoint PlaceOfKeypad(QSize size, const QRect& screen, const KeypadSurroundings& around) {
    const QRect room = screen.adjusted(Gap / 2, Gap / 2, -Gap / 2, -Gap / 2);
    // Beside the box, the window and what is spared, and along the edges of the screen.
    QList<int> lefts{around.box.left(), room.left(), room.right()};
    QList<int> tops{around.box.top(), around.window.top(), room.top(), room.bottom()};
    for (const QRect& rect : QList<QRect>{around.box, around.window} + around.spared) {
        lefts << rect.right() + Gap << rect.left() - Gap - size.width();
        tops << rect.bottom() + Gap << rect.top() - Gap - size.height();
    }
    QPoint best = room.topLeft();
    qint64 least = std::numeric_limits<qint64>::max();
    for (const int left : lefts) {
        for (const int top : tops) {
            const QPoint corner(std::max(room.left(), std::min(left, room.right() + 1 - size.width())),
                                std::max(room.top(), std::min(top, room.bottom() + 1 - size.height())));
            const QRect place(corner, size);
            const qint64 cost = Covered(place, {around.box}) * 10000 + Covered(place, around.spared) * 1000 +
                                Covered(place, around.used) / 50 + Covered(place, {around.window}) / 80 +
                                Distance(place, around.box);
            if (cost >= least) continue;
            least = cost;
            best = corner;
        }
    }
    return best;
}

}  // namespace forms
