#include "receipts/TextFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "core/Settings.h"
#include "core/dbModule.h"
#include "output/Channel.h"
#include "output/CodePage.h"
#include "output/PagePrinter.h"
#include "receipts/InvoiceOutput.h"
#include "receipts/ReceiptWords.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 ChunkSize = qint64{1024} * 1024;

[[noreturn]] void ThrowFileError(const QString& text, const QFileDevice& file) {
    throw values::Error(values::NumberOfFailure(file), text.arg(file.fileName(), file.errorString()));
}

void OpenForReading(QFile& file) {
    if (!file.open(QIODevice::ReadOnly)) ThrowFileError(ReceiptWords::tr("Cannot read %1: %2."), file);
}

QByteArray WithoutLineEnd(QByteArray line) {
    if (line.endsWith('\n')) line.chop(1);
    if (line.endsWith('\r')) line.chop(1);
    return line;
}

void PrintLines(QFile& file, const std::function<void(int)>& progress,
                const std::function<void(const QByteArray&)>& print) {
    const qint64 size = qMax(file.size(), qint64{1});
    int told = 0;
    while (!file.atEnd()) {
        print(WithoutLineEnd(file.readLine()));
        const int percent = static_cast<int>(file.pos() * 100 / size);
        if (percent == told) continue;
        told = percent;
        progress(percent);
    }
    if (file.error() != QFileDevice::NoError) ThrowFileError(ReceiptWords::tr("Cannot read %1: %2."), file);
}

void PrintOnPort(const QString& OutputMode, QFile& file, const std::function<void(int)>& progress) {
    OpenPrinterPort(OutputMode);
    OpenForReading(file);
    // The bytes as they lie there: the file is in the code page of the ports already.
    PrintLines(file, progress, [](const QByteArray& line) { output::Channel1().WriteBytes(line + "\r\n"); });
    output::Channel1().Close();
}

void PrintOnPages(QFile& file, const std::function<void(int)>& progress) {
    SetPageFont();
    OpenForReading(file);
    PrintLines(file, progress,
               [](const QByteArray& line) { output::ThePagePrinter().PrintLine(output::FromCodePage(line)); });
    output::ThePagePrinter().EndJob();
}

}  // namespace

void PrintTextFile(const QString& path, const std::function<void(int)>& progress) {
    PrintOrEndProgram([&] {
        QFile file(path);
        const QString& printer = TheSettings.PrinterZaIzvjestaj;
        if (printer == u"1" || printer == u"2") PrintOnPort(printer, file, progress);
        if (printer == u"3") PrintOnPages(file, progress);
    });
}

void CopyTextFile(const QString& from, const QString& to) {
    QFile source(from);
    OpenForReading(source);
    // Written beside the name and put in its place at the end.
    QSaveFile copy(to);
    if (!copy.open(QIODevice::WriteOnly)) ThrowFileError(ReceiptWords::tr("Cannot save %1: %2."), copy);
    QByteArray chunk;
    while (!(chunk = source.read(ChunkSize)).isEmpty())
        if (copy.write(chunk) != chunk.size()) ThrowFileError(ReceiptWords::tr("Cannot save %1: %2."), copy);
    if (source.error() != QFileDevice::NoError) ThrowFileError(ReceiptWords::tr("Cannot read %1: %2."), source);
    // What waits in the buffer yet: commit alone would put a cut copy in the place of the old file.
    if (!copy.flush() || !copy.commit()) ThrowFileError(ReceiptWords::tr("Cannot save %1: %2."), copy);
}

void DeleteTextFile(const QString& path) {
    if (!FileExists(path)) return;
    QFile file(path);
    if (!file.remove()) ThrowFileError(ReceiptWords::tr("Cannot delete %1: %2."), file);
}
