#include "forms/TextLines.h"

namespace forms {

namespace {

constexpr qint64 chunkSize = qint64{1024} * 1024;

}  // namespace

bool TextLines::Open(const QString& path) {
    Close();
    file_.setFileName(path);
    if (!file_.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) return false;
    // As long as it is now: a device, or a file that somebody goes on writing, would never end.
    const qint64 end = file_.size();
    QByteArray chunk;
    while (!(chunk = file_.read(qMin(chunkSize, end - size_))).isEmpty()) {
        AddLines(chunk, size_);
        size_ += chunk.size();
    }
    // What begins behind the last line end is no line of its own while nothing stands there.
    if (!starts_.empty() && starts_.back() == size_) starts_.pop_back();
    for (int line = 0; line < Count(); ++line)
        longest_ = qMax(longest_, static_cast<int>(End(line) - starts_[static_cast<size_t>(line)]));
    return true;
}

void TextLines::Close() {
    file_.close();
    starts_.clear();
    size_ = 0;
    longest_ = 0;
}

void TextLines::AddLines(const QByteArray& chunk, qint64 offset) {
    if (starts_.empty()) starts_.push_back(0);
    for (qsizetype from = 0; from < chunk.size();) {
        const qsizetype found = chunk.indexOf('\n', from);
        const qint64 end = offset + (found < 0 ? chunk.size() : found + 1);
        while (end - starts_.back() > LongestLine) starts_.push_back(starts_.back() + LongestLine);
        if (found < 0) return;
        starts_.push_back(end);
        from = found + 1;
    }
}

qint64 TextLines::End(int number) const {
    return number + 1 < Count() ? starts_[static_cast<size_t>(number) + 1] : size_;
}

QByteArray TextLines::Line(int number) const {
    QByteArray line = Bytes(number, number);
    if (line.endsWith('\n')) line.chop(1);
    if (line.endsWith('\r')) line.chop(1);
    return line;
}

QByteArray TextLines::Bytes(int first, int last) const {
    if (first < 0 || first > last || last >= Count()) return {};
    const qint64 start = starts_[static_cast<size_t>(first)];
    if (!file_.seek(start)) return {};
    return file_.read(End(last) - start);
}

}  // namespace forms
