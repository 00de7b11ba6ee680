#include "upkeep/PictureCopy.h"

#include <QDirIterator>
#include <QFile>

#include "upkeep/FileCopy.h"
#include "upkeep/Words.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

const auto PictureFolder = u"img"_s;

QDir PicturesOf(const QString& folder) {
    const QDir whole(folder), pictures(whole.filePath(PictureFolder));
    return whole.dirName() == PictureFolder && !pictures.exists() ? whole : pictures;
}

}  // namespace

PictureDifference ComparePictures(const QString& there, const QString& here, const Progress& progress) {
    const QDir theirs = PicturesOf(there), ours = PicturesOf(here);
    if (!theirs.exists())
        throw values::FileError(
            values::PathNotFound,
            Words::tr("There are no pictures in %1: it has no folder %2.").arg(there, PictureFolder));
    PictureDifference difference;
    for (QDirIterator files(theirs.path(), QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
        const QString name = theirs.relativeFilePath(files.next());
        GoOn(progress, Words::tr("Looking at %1").arg(name));
        if (!ours.exists(name))
            difference.missing << name;
        else if (FingerprintOf(theirs.filePath(name)) != FingerprintOf(ours.filePath(name)))
            difference.different << name;
    }
    difference.missing.sort();
    difference.different.sort();
    return difference;
}

void CopyPictures(const QString& there, const QString& here, const QStringList& names, const Progress& progress) {
    const QDir theirs = PicturesOf(there), ours = PicturesOf(here);
    MakeFolder(ours.path());
    for (const QString& name : names) {
        GoOn(progress, Words::tr("Copying %1").arg(name));
        MakeFoldersOf(ours.path(), name);
        const QString coming = ours.filePath(name) + u".part"_s;
        try {
            CopyToDisk(theirs.filePath(name), coming);
            Rename(coming, ours.filePath(name));
        } catch (const values::Error&) {
            QFile::remove(coming);
            throw;
        }
    }
    SyncFolder(ours.path());
}

}  // namespace upkeep
