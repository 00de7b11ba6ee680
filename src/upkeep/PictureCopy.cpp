#include "upkeep/PictureCopy.h"

#include <QDirIterator>

#include "upkeep/FileCopy.h"
#include "upkeep/Words.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

const auto PictureFolder = u"img"_s;

QDir PicturesOf(const QString& folder) {
    const QDir whole(folder), pictures(whole.filePath(PictureFolder));
    if (pictures.exists()) return pictures;
    if (whole.dirName() == PictureFolder) return whole;
    throw values::FileError(values::PathNotFound,
                            Words::tr("There are no pictures in %1: it has no folder %2.").arg(folder, PictureFolder));
}

}  // namespace

PictureDifference ComparePictures(const QString& there, const QString& here) {
    const QDir theirs = PicturesOf(there), ours(QDir(here).filePath(PictureFolder));
    PictureDifference difference;
    for (QDirIterator files(theirs.path(), QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
        const QString name = theirs.relativeFilePath(files.next());
        if (!ours.exists(name))
            difference.missing << name;
        else if (FingerprintOf(theirs.filePath(name)) != FingerprintOf(ours.filePath(name)))
            difference.different << name;
    }
    difference.missing.sort();
    difference.different.sort();
    return difference;
}

void CopyPictures(const QString& there, const QString& here, const QStringList& names) {
    const QDir theirs = PicturesOf(there), ours(QDir(here).filePath(PictureFolder));
    MakeFolder(ours.path());
    for (const QString& name : names) {
        MakeFoldersOf(ours.path(), name);
        const QString coming = ours.filePath(name) + u".part"_s;
        CopyToDisk(theirs.filePath(name), coming);
        Rename(coming, ours.filePath(name));
    }
    SyncFolder(ours.path());
}

}  // namespace upkeep
