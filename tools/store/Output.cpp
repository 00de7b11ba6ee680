#include "Output.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>

#include "ToolWords.h"
#include "values/FileError.h"

namespace tool {

void Output::Write(const QByteArray& bytes) {
    constexpr qsizetype block = qsizetype{64} * 1024;
    waiting_ += bytes;
    if (waiting_.size() >= block) Finish();
}

void Output::Finish() {
    QFile out;
    if (!out.open(STDOUT_FILENO, QIODevice::WriteOnly | QIODevice::Unbuffered) ||
        out.write(waiting_) != waiting_.size())
        throw values::FileError(values::NumberOfFailure(out),
                                ToolWords::tr("Cannot write the output: %1").arg(out.errorString()));
    waiting_.clear();
}

void HoldStandardStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        // Opened for reading, so that writing to it still fails.
        if (fcntl(stream, F_GETFD) < 0 && open("/dev/null", O_RDONLY) != stream) return;
}

}  // namespace tool
