#include "forms/WindowPlace.h"

namespace forms {

QRect WindowPlace(QSize size, QPoint centre, const QMargins& frame, const QRect& screen) {
    const QRect room = screen.marginsRemoved(frame);
    QRect place({}, size.boundedTo(room.size()));
    place.moveCenter(centre);
    place.moveLeft(qBound(room.left(), place.left(), room.right() + 1 - place.width()));
    place.moveTop(qBound(room.top(), place.top(), room.bottom() + 1 - place.height()));
    return place;
}

}  // namespace forms
