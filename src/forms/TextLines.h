#pragma once

#include <QByteArray>
#include <QFile>
#include <vector>

namespace forms {

// The lines of a text file, found by one pass over its bytes and read from the file only when they are asked for: a
// file of any size costs eight bytes a line. The file is as it was when it was opened, also after it was deleted.
class TextLines {
public:
    // A line longer than this is taken for several, so that no line is too long to be painted.
    static constexpr qint64 LongestLine = 4096;

    // False when the file cannot be opened; there are no lines then.
    bool Open(const QString& path);
    void Close();

    int Count() const { return static_cast<int>(starts_.size()); }
    // Bytes of the longest line, its end included.
    int Longest() const { return longest_; }
    // Bytes of a line without its end (LF or CR LF); empty for a line that the file does not have.
    QByteArray Line(int number) const;
    // All bytes of lines `first` to `last`, as they lie in the file.
    QByteArray Bytes(int first, int last) const;

private:
    void AddLines(const QByteArray& chunk, qint64 offset);
    qint64 End(int number) const;

    mutable QFile file_;
    std::vector<qint64> starts_;
    qint64 size_ = 0;
    int longest_ = 0;
};

}  // namespace forms
