#pragma once

#include <QStringList>

#include "upkeep/Progress.h"

namespace upkeep {

// The pictures of touch buttons lie in each register's folder `img`; what one register has, another may lack.
struct PictureDifference {
    QStringList missing;    // there and not here: names below the folder of pictures
    QStringList different;  // in both, but not the same
};

// Both are folders that have a folder of pictures, as registers and backups do, or such a folder itself; `here` may
// lack it still. A FileError when there are no pictures, or one can't be read.
PictureDifference ComparePictures(const QString& there, const QString& here, const Progress& progress = {});
// Brings these over; one that was here before is replaced, whole or not at all.
void CopyPictures(const QString& there, const QString& here, const QStringList& names, const Progress& progress = {});

}  // namespace upkeep
