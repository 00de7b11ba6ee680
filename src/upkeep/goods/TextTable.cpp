#include "upkeep/goods/TextTable.h"

#include <csv.h>

#include <algorithm>
#include <array>

#include "upkeep/Words.h"
#include "upkeep/goods/TableBytes.h"
#include "upkeep/goods/TextDecoder.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

constexpr size_t MostRows = 200'000;
constexpr qsizetype MostCellsInRow = 256;
constexpr qint64 MostCells = 5'000'000;

[[noreturn]] void Refuse(const QString& words) {
    throw values::FileError(values::PathFault, words);
}

// Rows of cells from the pieces that the parser gives. It is fed line by line, so that a row knows where it begins.
class RowReader {
public:
    explicit RowReader(char separator) {
        // Not strict: a sign for inches is no quotation mark.
        if (csv_init(&parser_, 0) != 0) throw std::bad_alloc();
        csv_set_delim(&parser_, static_cast<unsigned char>(separator));
        csv_set_blk_size(&parser_, 4096);
    }
    ~RowReader() { csv_free(&parser_); }
    RowReader(const RowReader&) = delete;
    RowReader& operator=(const RowReader&) = delete;

    std::vector<TableRow> Read(const QByteArray& text) {
        qsizetype begin = 0;
        while (begin < text.size()) {
            const qsizetype end = EndOfLine(text, begin);
            ++line_;
            if (parser_.pstate == RowNotBegun) row_.line = line_;
            Check(csv_parse(&parser_, text.constData() + begin, static_cast<size_t>(end - begin), TakeCell, TakeRow,
                            this) == static_cast<size_t>(end - begin));
            begin = end;
        }
        Check(csv_fini(&parser_, TakeCell, TakeRow, this) == 0);
        return std::move(rows_);
    }

private:
    static constexpr int RowNotBegun = 0;  // a state of the parser

    // Behind its CR, LF, or both.
    static qsizetype EndOfLine(const QByteArray& text, qsizetype from) {
        while (from < text.size() && text[from] != '\n' && text[from] != '\r') ++from;
        if (from + 1 < text.size() && text[from] == '\r' && text[from + 1] == '\n') ++from;
        return std::min(from + 1, text.size());
    }

    void Check(bool isRead) {
        if (!words_.isEmpty()) Refuse(words_);
        if (isRead) return;
        throw std::bad_alloc();
    }

    static void TakeCell(void* bytes, size_t length, void* self) {
        auto& reader = *static_cast<RowReader*>(self);
        if (!reader.words_.isEmpty()) return;
        reader.row_.cells.append(QString::fromUtf8(static_cast<const char*>(bytes), static_cast<qsizetype>(length)));
        if (++reader.cells_ > MostCells || reader.row_.cells.size() > MostCellsInRow)
            reader.words_ = Words::tr("The row in line %1 makes the table larger than %2 columns or %3 cells.")
                                .arg(reader.row_.line)
                                .arg(MostCellsInRow)
                                .arg(MostCells);
    }

    static void TakeRow(int, void* self) {
        auto& reader = *static_cast<RowReader*>(self);
        if (!reader.words_.isEmpty()) return;
        const auto isEmpty = [](const QString& cell) { return cell.trimmed().isEmpty(); };
        if (!std::ranges::all_of(reader.row_.cells, isEmpty)) {
            reader.row_.cells.squeeze();
            reader.rows_.push_back(reader.row_);
        }
        reader.row_ = {.line = reader.line_, .cells = {}};
        if (reader.rows_.size() > MostRows)
            reader.words_ = Words::tr("The table has more than %1 rows. Divide it.").arg(MostRows);
    }

    csv_parser parser_{};
    TableRow row_;
    std::vector<TableRow> rows_;
    qint64 line_ = 0;
    qint64 cells_ = 0;
    QString words_;  // why it can't go on
};

// The parser goes on reading a cell that has text behind its closing quotation mark, or none, up to the next such mark,
// rows further down: whose cell that is nobody could say.
void RequireClosedQuotes(const QString& text, QChar separator) {
    enum class At { Begin, Bare, Quoted, Behind } at = At::Begin;
    qint64 line = 1, begin = 1;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool endsLine = c == u'\n' || (c == u'\r' && (i + 1 == text.size() || text[i + 1] != u'\n'));
        if (at == At::Quoted) {
            if (c == u'"') at = At::Behind;
        } else if (c == separator || c == u'\n' || c == u'\r') {
            at = At::Begin;
        } else if (c == u'"' && at != At::Bare) {
            if (at == At::Begin) begin = line;
            at = At::Quoted;
        } else if (at == At::Behind && c != u' ' && c != u'\t') {
            Refuse(
                Words::tr(
                    "In line %1 there is text behind a closing quotation mark. A mark within quotes has to be doubled.")
                    .arg(line));
        } else if (at == At::Begin && c != u' ' && c != u'\t') {
            at = At::Bare;
        }
        if (endsLine) ++line;
    }
    if (at == At::Quoted) Refuse(Words::tr("The quotation mark in line %1 is never closed.").arg(begin));
}

// How many of each sign stand outside of quotes in the first lines.
QChar GuessSeparator(const QString& text) {
    constexpr std::array candidates{u';', u'\t', u','};
    constexpr int linesLookedAt = 100;
    std::array<std::vector<int>, candidates.size()> counts;
    for (auto& count : counts) count.push_back(0);
    bool isQuoted = false;
    for (const QChar c : text) {
        if (c == u'"') isQuoted = !isQuoted;
        if (isQuoted) continue;
        for (size_t i = 0; i < candidates.size(); ++i) {
            if (c == candidates[i]) ++counts[i].back();
            if (c == u'\n' || c == u'\r') counts[i].push_back(0);
        }
        if (counts[0].size() > linesLookedAt) break;
    }
    // A sign that stands in most lines the same number of times; the first of equals.
    size_t best = 0;
    qint64 bestScore = 0;
    for (size_t i = 0; i < candidates.size(); ++i) {
        qint64 score = 0;
        for (const int count : counts[i])
            if (count > 0) score += 1 + 2 * std::ranges::count(counts[i], count);
        if (score > bestScore) {
            best = i;
            bestScore = score;
        }
    }
    return candidates[best];
}

// Spreadsheets understand, and some programs write, a first line that names the sign.
QChar TakeSeparatorLine(QString& text) {
    if (!text.startsWith(u"sep=", Qt::CaseInsensitive) || text.size() < 6) return {};
    const QChar sign = text[4];
    if ((sign != u';' && sign != u',' && sign != u'\t') || (text[5] != u'\r' && text[5] != u'\n')) return {};
    // The line stays, so that lines keep their numbers.
    text.remove(0, 5);
    return sign;
}

void RequireText(const QString& text) {
    for (const QChar c : text)
        if (c < u' ' && c != u'\n' && c != u'\r' && c != u'\t' && c != u'\f' && c != u'\x1A')
            Refuse(Words::tr(
                "The file is no text: it holds characters that no table has. Save it in the spreadsheet as CSV."));
}

}  // namespace

TextTable ReadTextTable(const QString& path, const TableForm& form) {
    TextTable table{.form = form, .rows = {}};
    QByteArray utf8;
    {
        const QByteArray bytes = ReadTableBytes(path);
        if (form.encoding.isEmpty()) table.form.encoding = GuessEncoding(bytes);
        QString text = DecodeText(bytes, table.form.encoding);
        RequireText(text);
        const QChar named = TakeSeparatorLine(text);
        if (form.separator.isNull()) table.form.separator = named.isNull() ? GuessSeparator(text) : named;
        RequireClosedQuotes(text, table.form.separator);
        utf8 = text.toUtf8();
    }
    table.rows = RowReader(static_cast<char>(table.form.separator.unicode())).Read(utf8);
    if (table.rows.empty()) Refuse(Words::tr("The file is empty."));
    return table;
}

}  // namespace upkeep
