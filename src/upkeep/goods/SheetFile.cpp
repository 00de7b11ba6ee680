#include "upkeep/goods/SheetFile.h"

#include <xlsxwriter.h>

#include <QFile>
#include <algorithm>
#include <cstdio>

#include "upkeep/ValueText.h"
#include "upkeep/Words.h"
#include "values/Csv.h"
#include "values/FileError.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;
using values::Value;

namespace upkeep {

namespace {

bool IsNumber(const Value& value) {
    return value.GetKind() == Value::Kind::Money || value.GetKind() == Value::Kind::Whole ||
           value.GetKind() == Value::Kind::Double;
}

QByteArray NumberCell(const Value& value, bool isPrice) {
    QByteArray number = WriteValue(value);
    if (isPrice) {
        const qsizetype point = number.indexOf('.');
        const qsizetype decimals = point < 0 ? 0 : number.size() - point - 1;
        if (decimals == 0) number += ".00";
        if (decimals == 1) number += '0';
    }
    return values::DecimalSeparatorChar() == u',' ? number.replace('.', ',') : number;
}

QByteArray CsvOf(const Sheet& sheet) {
    values::CsvWriter csv(values::CsvQuotes::AllTexts);
    for (const Sheet::Column& column : sheet.columns) csv.AddText(column.heading);
    csv.EndRow();
    for (const auto& row : sheet.rows) {
        for (size_t i = 0; i < row.size(); ++i)
            if (row[i].GetKind() == Value::Kind::Text)
                csv.AddText(row[i].ToText());
            else
                csv.AddPlain(QString::fromLatin1(IsNumber(row[i]) ? NumberCell(row[i], sheet.columns[i].isPrice)
                                                                  : WriteValue(row[i])));
        csv.EndRow();
    }
    return csv.Text();
}

void WriteCsv(const QString& path, const Sheet& sheet) {
    values::SaveFile(path, CsvOf(sheet));
}

// One sheet of a workbook; its file is written when it is closed.
class Workbook {
public:
    Workbook(const QByteArray& path, const Sheet& sheet) : book_(workbook_new(path.constData())) {
        if (book_ == nullptr) throw std::bad_alloc();
        page_ = workbook_add_worksheet(book_, sheet.name.toUtf8().constData());
        price_ = workbook_add_format(book_);
        format_set_num_format(price_, "0.00##");
        lxw_format* strong = workbook_add_format(book_);
        format_set_bold(strong);
        for (size_t i = 0; i < sheet.columns.size(); ++i) {
            const auto column = static_cast<lxw_col_t>(i);
            worksheet_write_string(page_, 0, column, sheet.columns[i].heading.toUtf8().constData(), strong);
            worksheet_set_column(page_, column, column, WidthOf(sheet, i), nullptr);
        }
        worksheet_freeze_panes(page_, 1, 0);
        for (size_t row = 0; row < sheet.rows.size(); ++row)
            for (size_t i = 0; i < sheet.rows[row].size(); ++i)
                Write(static_cast<lxw_row_t>(row + 1), static_cast<lxw_col_t>(i), sheet.rows[row][i],
                      sheet.columns[i].isPrice);
    }
    ~Workbook() {
        if (book_ != nullptr) lxw_workbook_free(book_);
    }
    Workbook(const Workbook&) = delete;
    Workbook& operator=(const Workbook&) = delete;

    // Empty when all went well.
    QString Close() {
        const lxw_error error = workbook_close(book_);
        book_ = nullptr;
        return error == LXW_NO_ERROR && !failed_ ? QString() : QString::fromUtf8(lxw_strerror(error));
    }

private:
    static double WidthOf(const Sheet& sheet, size_t column) {
        constexpr qsizetype narrowest = 8, widest = 50;
        qsizetype width = sheet.columns[column].heading.size();
        for (const auto& row : sheet.rows) width = std::max(width, row[column].TextOrEmpty().size());
        return static_cast<double>(std::clamp(width + 2, narrowest, widest));
    }

    void Write(lxw_row_t row, lxw_col_t column, const Value& value, bool isPrice) {
        if (value.IsNull()) return;
        // A workbook knows no other numbers than doubles; four decimals of any price come back from one unchanged.
        const lxw_error error =
            IsNumber(value) ? worksheet_write_number(page_, row, column, value.ToDouble(), isPrice ? price_ : nullptr)
                            : worksheet_write_string(page_, row, column, TextOf(value).constData(), nullptr);
        failed_ = failed_ || error != LXW_NO_ERROR;
    }

    static QByteArray TextOf(const Value& value) {
        return value.GetKind() == Value::Kind::Text ? value.ToText().toUtf8() : WriteValue(value);
    }

    lxw_workbook* book_;
    lxw_worksheet* page_ = nullptr;
    lxw_format* price_ = nullptr;
    bool failed_ = false;
};

void WriteWorkbook(const QString& path, const Sheet& sheet) {
    // Beside its place until it is whole; made here, so that what is wrong with the place is told in our words.
    QFile part(path + u".part"_s);
    if (!part.open(QIODevice::WriteOnly)) throw values::FileError(part, values::FileWork::Writing, path);
    part.close();
    const QString error = Workbook(QFile::encodeName(part.fileName()), sheet).Close();
    if (error.isEmpty() &&
        std::rename(QFile::encodeName(part.fileName()).constData(), QFile::encodeName(path).constData()) == 0)
        return;
    const int reason = errno;
    part.remove();
    throw values::FileError(values::NumberOfOsError(reason), Words::tr("Cannot write '%1'. %2").arg(path, error));
}

}  // namespace

void WriteSheet(const QString& path, const Sheet& sheet) {
    if (path.endsWith(u".xlsx", Qt::CaseInsensitive)) return WriteWorkbook(path, sheet);
    WriteCsv(path, sheet);
}

}  // namespace upkeep
