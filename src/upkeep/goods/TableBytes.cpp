#include "upkeep/goods/TableBytes.h"

#include <QFile>
#include <QFileInfo>

#include "upkeep/Words.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

[[noreturn]] void Refuse(const QString& words) {
    throw values::FileError(values::PathFault, words);
}

QString SaveAsCsv() {
    return Words::tr("Save it in the spreadsheet as CSV and choose that file.");
}

// What begins so is a workbook, and which kind does not matter: it is to be saved as text.
void RefuseWorkbook(const QByteArray& bytes) {
    // A workbook under a password lies in the same container as an old one.
    if (bytes.startsWith("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1")) {
        constexpr char16_t locked[] = u"EncryptedPackage";
        const auto name = QByteArray::fromRawData(reinterpret_cast<const char*>(locked), sizeof locked - 2);
        if (bytes.contains(name))
            Refuse(Words::tr("This is a workbook under a password. Open it with the password. %1").arg(SaveAsCsv()));
        Refuse(Words::tr("This is a workbook, not a text. %1").arg(SaveAsCsv()));
    }
    if (!bytes.startsWith("PK\x03\x04") && !bytes.startsWith("PK\x05\x06")) return;
    const QByteArray head = bytes.first(std::min<qsizetype>(bytes.size(), 4096));
    if (head.contains("opendocument") || head.contains("[Content_Types].xml") || head.contains("xl/"))
        Refuse(Words::tr("This is a workbook, not a text. %1").arg(SaveAsCsv()));
    Refuse(Words::tr("This is a packed file (zip). Unpack it; a table in it has to be a CSV file."));
}

void RefuseOtherKinds(const QByteArray& bytes) {
    RefuseWorkbook(bytes);
    if (bytes.startsWith("SQLite format 3")) Refuse(Words::tr("This is a store, not a table."));
    if (bytes.startsWith("%PDF")) Refuse(Words::tr("This is a PDF. Ask for the table itself, as CSV."));
    for (const char* head : {"\x89PNG", "\xFF\xD8\xFF", "GIF8", "II*", "MM\0*", "RIFF"})
        if (bytes.startsWith(head)) Refuse(Words::tr("This is a picture, not a table."));
    for (const char* head : {"<!DOCTYPE", "<html", "<HTML", "<?xml", "{\\rtf"})
        if (bytes.startsWith(head))
            Refuse(Words::tr("This is a document of another kind, not a table of text. %1").arg(SaveAsCsv()));
}

}  // namespace

QByteArray ReadTableBytes(const QString& path) {
    QFile file(path);
    // A pipe or a device has no end that could be waited for.
    if (const QFileInfo info(path); info.exists() && !info.isFile()) Refuse(Words::tr("'%1' is no file.").arg(path));
    if (!file.open(QIODevice::ReadOnly)) throw values::FileError(file, values::FileWork::Reading, path);
    const QByteArray bytes = file.read(LargestTable + 1);
    if (file.error() != QFileDevice::NoError) throw values::FileError(file, values::FileWork::Reading, path);
    if (bytes.trimmed().isEmpty()) Refuse(Words::tr("The file is empty."));
    RefuseOtherKinds(bytes);
    if (bytes.size() > LargestTable)
        Refuse(Words::tr("The file is larger than %1 MB, which is more than a table of goods has. Divide it.")
                   .arg(LargestTable / 1024 / 1024));
    return bytes;
}

}  // namespace upkeep
