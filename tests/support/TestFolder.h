#pragma once

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>
#include <QTemporaryDir>

// For a QTemporaryDir of stores: in memory where there is such a folder with that much room, since there is nothing to
// learn from waiting for the disk at each commit.
inline QString FolderTemplate(qint64 room = 0) {
    const auto memory = QStringLiteral("/dev/shm");
    const bool fits = QFileInfo(memory).isWritable() && QStorageInfo(memory).bytesAvailable() >= room;
    return (fits ? memory : QDir::tempPath()) + QStringLiteral("/velton-XXXXXX");
}
