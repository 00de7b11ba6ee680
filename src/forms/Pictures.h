#pragma once

#include <QIcon>
#include <QPixmap>
#include <functional>

class QPainter;

// Pictures of files, read no larger than a thumbnail, and read again only when the file has changed. One that would
// cost a till its time (16 MB, or 4 million points; 16 million of a JPEG, which is read small) is none.
namespace forms {

// Null when there is none.
QPixmap ReadPicture(const QString& path);
// Read when it is first looked at, so that a table of many buttons is there at once; null when the file's head tells
// that there is none.
QIcon PictureIcon(const QString& path);

// Drawn by hand: so many pixels each way, sharp on dense screens too.
QPixmap Drawn(int size, const std::function<void(QPainter&)>& draw);

}  // namespace forms
