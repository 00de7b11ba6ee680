#include "upkeep/goods/TableFile.h"

#include <csv.h>
#include <unicode/ucnv.h>
#include <unicode/ucsdet.h>

#include <QFile>
#include <memory>

#include "upkeep/Words.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

constexpr qint64 LargestFile = qint64{64} << 20;
constexpr qsizetype SampleLines = 40;

[[noreturn]] void Refuse(const QString& why) {
    throw values::FileError(values::PathFault, why);
}

// What a file is by its first bytes, when that is no table.
void RefuseForeign(const QByteArray& bytes) {
    if (bytes.isEmpty()) Refuse(Words::tr("The file is empty."));
    const std::pair<QByteArray, QString> kinds[] = {
        {"PK\x03\x04", Words::tr("This is a spreadsheet's own file. Save it as CSV in the spreadsheet and take that.")},
        {"\xD0\xCF\x11\xE0",
         Words::tr(
             "This is an old spreadsheet's own file, or one with a password. Save it as CSV without a password.")},
        {"%PDF", Words::tr("This is a PDF, not a table.")},
        {"\x89PNG", Words::tr("This is a picture, not a table.")},
        {"\xFF\xD8\xFF", Words::tr("This is a picture, not a table.")},
        {"GIF8", Words::tr("This is a picture, not a table.")},
        {"SQLite format 3", Words::tr("This is a store, not a table.")}};
    for (const auto& [beginning, why] : kinds)
        if (bytes.startsWith(beginning)) Refuse(why);
}

QByteArray ReadAll(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw values::FileError(file, u"read '%1'"_s.arg(path));
    const QByteArray bytes = file.read(LargestFile + 1);
    if (file.error() != QFileDevice::NoError) throw values::FileError(file, u"read '%1'"_s.arg(path));
    RefuseForeign(bytes);
    if (bytes.size() > LargestFile) Refuse(Words::tr("The file is larger than 64 MB; no price list is."));
    return bytes;
}

bool IsUtf8(const QByteArray& bytes) {
    return bytes.isValidUtf8();
}

// The detector knows the standards; spreadsheets save the code pages that took their place.
QByteArray AsSpreadsheetsSave(const QByteArray& standard) {
    if (standard == "ISO-8859-1" || standard == "ISO-8859-15") return "windows-1252";
    return standard == "ISO-8859-2" ? QByteArray("windows-1250") : standard;
}

QByteArray GuessEncoding(const QByteArray& bytes) {
    if (bytes.startsWith("\xFF\xFE")) return "UTF-16LE";
    if (bytes.startsWith("\xFE\xFF")) return "UTF-16BE";
    if (bytes.startsWith("\xEF\xBB\xBF") || (!bytes.contains('\0') && IsUtf8(bytes))) return "UTF-8";
    UErrorCode error = U_ZERO_ERROR;
    const std::unique_ptr<UCharsetDetector, void (*)(UCharsetDetector*)> detector(ucsdet_open(&error), ucsdet_close);
    ucsdet_setText(detector.get(), bytes.constData(), static_cast<int32_t>(bytes.size()), &error);
    const UCharsetMatch* match = ucsdet_detect(detector.get(), &error);
    const char* name = match == nullptr || U_FAILURE(error) ? nullptr : ucsdet_getName(match, &error);
    return name == nullptr ? QByteArray("windows-1252") : AsSpreadsheetsSave(name);
}

QString Decoded(const QByteArray& bytes, const QByteArray& encoding) {
    UErrorCode error = U_ZERO_ERROR;
    const std::unique_ptr<UConverter, void (*)(UConverter*)> converter(ucnv_open(encoding.constData(), &error),
                                                                       ucnv_close);
    if (U_FAILURE(error)) Refuse(Words::tr("There is no encoding %1.").arg(QString::fromLatin1(encoding)));
    QString text(2 * bytes.size() + 16, Qt::Uninitialized);
    const int32_t length =
        ucnv_toUChars(converter.get(), reinterpret_cast<UChar*>(text.data()), static_cast<int32_t>(text.size()),
                      bytes.constData(), static_cast<int32_t>(bytes.size()), &error);
    if (U_FAILURE(error)) Refuse(Words::tr("The file can't be read as %1.").arg(QString::fromLatin1(encoding)));
    text.truncate(length);
    if (text.startsWith(QChar::ByteOrderMark)) text.remove(0, 1);
    if (text.contains(QChar::Null)) Refuse(Words::tr("The file is no text."));
    return text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
}

// The parser tells of cells and ends of rows; lines are counted by handing them over one by one.
class Parser {
public:
    explicit Parser(QChar separator) {
        if (csv_init(&parser_, 0) != 0) throw std::bad_alloc();
        csv_set_delim(&parser_, static_cast<unsigned char>(separator.toLatin1()));
    }
    ~Parser() { csv_free(&parser_); }
    Parser(const Parser&) = delete;
    Parser& operator=(const Parser&) = delete;

    std::vector<TableText::Row> Rows(const QString& text, qsizetype mostLines = -1) {
        for (const auto& line : QStringView(text).split(u'\n')) {
            if (mostLines >= 0 && line_ >= mostLines) break;
            ++line_;
            const QByteArray bytes = line.toUtf8() + '\n';
            csv_parse(&parser_, bytes.constData(), static_cast<size_t>(bytes.size()), &TakeCell, &EndRow, this);
        }
        csv_fini(&parser_, &TakeCell, &EndRow, this);
        return std::move(rows_);
    }

private:
    static void TakeCell(void* cell, size_t size, void* self) {
        static_cast<Parser*>(self)->row_.cells +=
            QString::fromUtf8(static_cast<const char*>(cell), static_cast<qsizetype>(size));
    }
    static void EndRow(int, void* self) {
        auto& parser = *static_cast<Parser*>(self);
        const bool isEmpty = parser.row_.cells.join(QString()).trimmed().isEmpty();
        parser.row_.line = parser.begin_;
        if (!isEmpty) parser.rows_.push_back(std::move(parser.row_));
        parser.row_ = {};
        parser.begin_ = parser.line_ + 1;
    }

    csv_parser parser_ = {};
    int line_ = 0;
    int begin_ = 1;
    TableText::Row row_;
    std::vector<TableText::Row> rows_;
};

// The one by which most lines fall into the same number of cells.
QChar GuessSeparator(const QString& text) {
    QChar best = u';';
    qsizetype bestScore = 0;
    for (const QChar separator : {u';', u'\t', u','}) {
        QHash<qsizetype, qsizetype> rowsOfWidth;
        for (const TableText::Row& row : Parser(separator).Rows(text, SampleLines)) ++rowsOfWidth[row.cells.size()];
        for (auto width = rowsOfWidth.cbegin(); width != rowsOfWidth.cend(); ++width) {
            const qsizetype score = width.key() > 1 ? width.value() * 100 + width.key() : 0;
            if (score <= bestScore) continue;
            bestScore = score;
            best = separator;
        }
    }
    return best;
}

}  // namespace

TableText ReadTable(const QString& path, const TableForm& form) {
    const QByteArray bytes = ReadAll(path);
    TableText table;
    table.form.encoding = form.encoding.isEmpty() ? GuessEncoding(bytes) : form.encoding;
    const QString text = Decoded(bytes, table.form.encoding);
    table.form.separator = form.separator.isNull() ? GuessSeparator(text) : form.separator;
    table.rows = Parser(table.form.separator).Rows(text);
    if (table.rows.empty()) Refuse(Words::tr("The file has no rows."));
    return table;
}

}  // namespace upkeep
