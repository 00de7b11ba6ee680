#include "upkeep/goods/GoodsSheet.h"

#include <algorithm>

#include "upkeep/Words.h"
#include "upkeep/goods/AmountText.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

// Above the headings there may be a title, a date, an address.
constexpr size_t RowsLookedAt = 30;

size_t FindHeadings(const std::vector<TableRow>& rows) {
    size_t best = 0;
    qsizetype most = 0;
    for (size_t row = 0; row < std::min(rows.size(), RowsLookedAt); ++row) {
        const QList<SheetField> fields = GuessFields(rows[row].cells);
        const qsizetype known = fields.size() - fields.count(SheetField::None);
        if (known > most) {
            most = known;
            best = row;
        }
    }
    return best;
}

qsizetype FindColumn(const GoodsSheet& sheet, const QString& column) {
    const QStringList& headings = sheet.Headings();
    for (qsizetype i = 0; i < headings.size(); ++i)
        if (headings[i].trimmed().compare(column.trimmed(), Qt::CaseInsensitive) == 0) return i;
    bool isNumber = false;
    const int number = column.toInt(&isNumber);
    if (isNumber && number >= 1 && number <= headings.size()) return number - 1;
    throw values::FileError(
        values::InvalidCall,
        Words::tr("The table has no column '%1'. Its columns are: %2.").arg(column, headings.join(u", ")));
}

void Apply(const ColumnChoice& choice, GoodsSheet& sheet) {
    if (choice.field != SheetField::None) std::ranges::replace(sheet.columns, choice.field, SheetField::None);
    if (!choice.column.isEmpty()) sheet.columns[FindColumn(sheet, choice.column)] = choice.field;
}

QChar GuessDecimal(const GoodsSheet& sheet) {
    DecimalVotes votes;
    for (const SheetField field : {SheetField::Price, SheetField::Quantity}) {
        const qsizetype column = sheet.ColumnOf(field);
        if (column < 0) continue;
        for (size_t row = sheet.headingRow + 1; row < sheet.table.rows.size(); ++row)
            if (const QStringList& cells = sheet.table.rows[row].cells; column < cells.size())
                votes.Count(cells[column]);
    }
    return votes.Winner();
}

// Columns at the end that have neither a heading nor, in most tables, a cell.
void DropBlankColumns(QStringList& headings) {
    while (!headings.isEmpty() && headings.last().trimmed().isEmpty()) headings.removeLast();
}

}  // namespace

GoodsSheet ReadGoodsSheet(const QString& path, const SheetWish& wish) {
    GoodsSheet sheet;
    sheet.table = ReadTextTable(path, wish.form);
    sheet.headingRow = FindHeadings(sheet.table.rows);
    DropBlankColumns(sheet.table.rows[sheet.headingRow].cells);
    sheet.columns = GuessFields(sheet.Headings());
    for (const ColumnChoice& choice : wish.columns) Apply(choice, sheet);
    sheet.decimal = wish.decimal.isNull() ? GuessDecimal(sheet) : wish.decimal;
    return sheet;
}

}  // namespace upkeep
