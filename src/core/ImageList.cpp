#include "core/ImageList.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal LineWidth = 1.6;
constexpr int Densities[] = {1, 2, 3};

// A disk: its shutter above, its label below.
QPainterPath Disk() {
    QPainterPath path;
    path.addPolygon(QPolygonF({{2.5, 2.5}, {12.5, 2.5}, {15.5, 5.5}, {15.5, 15.5}, {2.5, 15.5}, {2.5, 2.5}}));
    path.addPolygon(QPolygonF({{5.5, 2.5}, {5.5, 6.5}, {11, 6.5}, {11, 2.5}}));
    path.addPolygon(QPolygonF({{5.5, 15.5}, {5.5, 10}, {12.5, 10}, {12.5, 15.5}}));
    return path;
}

QPainterPath Question() {
    QPainterPath path;
    path.addEllipse(QRectF(2, 2, 14, 14));
    path.moveTo(6.9, 7.2);
    path.cubicTo(6.9, 4.6, 11.3, 4.6, 11.3, 7.2);
    path.cubicTo(11.3, 8.9, 9, 8.8, 9, 10.6);
    path.moveTo(9, 12.9);
    path.lineTo(9, 13);
    return path;
}

QPainterPath Cross() {
    QPainterPath path;
    path.moveTo(4, 4);
    path.lineTo(14, 14);
    path.moveTo(14, 4);
    path.lineTo(4, 14);
    return path;
}

QPainterPath Shape(const QString& key) {
    if (key == u"save") return Disk();
    if (key == u"help") return Question();
    if (key == u"close") return Cross();
    return {};
}

}  // namespace

QIcon DrawImage(const QString& key, const QColor& ink) {
    const QPainterPath shape = Shape(key);
    QIcon icon;
    if (shape.isEmpty()) return icon;
    for (const int density : Densities) {
        QPixmap pixmap(QSize(ImageSize, ImageSize) * density);
        pixmap.setDevicePixelRatio(density);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.strokePath(shape, QPen(ink, LineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}
