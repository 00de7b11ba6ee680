#pragma once

#include <QImage>
#include <QList>

namespace screens {

// At most 256 colours for a picture: first those that it has most of, then, one after the other, those that are the
// farthest from all chosen before. The same picture gives the same colours.
QList<QRgb> PaletteOf(const QImage& picture);

}  // namespace screens
