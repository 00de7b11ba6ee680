#pragma once

#include <QByteArray>

namespace tool {

// Standard output. What cannot be written throws values::FileError, at the latest from Finish.
class Output {
public:
    void Write(const QByteArray& bytes);
    void WriteLine(const QString& text) { Write(text.toUtf8() + '\n'); }
    void Finish();

private:
    QByteArray waiting_;
};

// Keeps a store's file from taking the place of a standard stream that the caller closed.
void HoldStandardStreams();

}  // namespace tool
