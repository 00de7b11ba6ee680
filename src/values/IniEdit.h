#pragma once

#include <QByteArrayList>
#include <QSaveFile>

namespace values {

// A change of a file that IniFile reads. Lines of keys that are set or removed change, all others stay byte for byte.
// The file is then there with all changes, or as it was.
class IniEdit {
public:
    // Begins with nothing where there is no such file. A FileError when it can't be read, or is not in UTF-8.
    explicit IniEdit(const QString& path);

    // Where the key stands, else at the end of its section, else in a new section at the end of the file. Line breaks
    // and blanks around a value can't be said and become one blank, or none.
    void Set(const QString& section, const QString& key, const QString& value);
    void Remove(const QString& section, const QString& key);

    // Beside the file and on the disk; a FileError when that can't be done.
    void Prepare();
    // Makes it the file, after Prepare.
    void PutInPlace();
    void Save() { Prepare(), PutInPlace(); }

private:
    void Replace(const QByteArray& section, const QByteArray& key, const QByteArray* line);

    QSaveFile file_;
    QByteArrayList lines_;
    QByteArray lineEnd_ = "\n";
};

}  // namespace values
