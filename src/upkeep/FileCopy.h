#pragma once

#include <QString>

#include "upkeep/Progress.h"

// Files that have to be on a disk, whole, before anybody counts on them. Failures are FileErrors.
namespace upkeep {

struct Fingerprint {
    qint64 bytes = 0;
    QByteArray sha256;  // in hexadecimal digits
    bool operator==(const Fingerprint&) const = default;
};

// Of a file, or of so many bytes of it. What lies on the disk is read, not what the system remembers of it.
Fingerprint FingerprintOf(const QString& path, qint64 atMost = -1);
// Copies a file, or so many bytes of it, which is on the disk then; gives what was written.
Fingerprint CopyToDisk(const QString& from, const QString& to, qint64 atMost = -1);
void WriteToDisk(const QString& path, const QByteArray& content);
// What was made, renamed or removed in a folder is on the disk. Where the file system can't, it goes without saying.
void SyncFolder(const QString& path);
// A second name for a file; false where the file system knows none.
bool MakeLink(const QString& of, const QString& path);
void Rename(const QString& from, const QString& to);
void MakeFolder(const QString& path);
// Those that a file lies in, from a folder that is there on: "img/fruit/apple.png".
void MakeFoldersOf(const QString& folder, const QString& name);
// False when something could not be taken away.
bool RemoveFolder(const QString& path);
// Before so many bytes are written to the disk of a folder.
void RequireRoom(const QString& folder, qint64 bytes);

}  // namespace upkeep
