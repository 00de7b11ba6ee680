#pragma once

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

// For a QTemporaryDir of stores: in memory where there is such a folder, since there is nothing to learn from waiting
// for the disk at each commit.
inline QString FolderTemplate() {
    const auto memory = QStringLiteral("/dev/shm");
    return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + QStringLiteral("/velton-XXXXXX");
}
