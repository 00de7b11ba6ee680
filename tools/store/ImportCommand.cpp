#include "Commands.h"
#include "Output.h"
#include "upkeep/ValueText.h"
#include "upkeep/goods/GoodsExport.h"
#include "upkeep/goods/GoodsImport.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;
using namespace upkeep;

namespace tool {

namespace {

QByteArray Word(GoodsRow::Kind kind) {
    switch (kind) {
        case GoodsRow::Kind::New:
            return "new";
        case GoodsRow::Kind::Changed:
            return "changed";
        case GoodsRow::Kind::Unchanged:
            return "unchanged";
        case GoodsRow::Kind::LeftOut:
            return "left out";
        case GoodsRow::Kind::Refused:
            return "refused";
    }
    return {};
}

// COLUMN=FIELD, the column by its heading or its number from 1.
QMap<int, GoodsField> ColumnsOf(const QStringList& map, const QStringList& headings) {
    QMap<int, GoodsField> columns;
    for (const QString& one : map) {
        const QString name = one.section(u'=', 0, -2);
        const auto field = FieldNamed(one.section(u'=', -1));
        bool isNumber = false;
        int column = name.toInt(&isNumber) - 1;
        if (!isNumber) column = static_cast<int>(headings.indexOf(name));
        if (!field || column < 0 || column >= headings.size())
            throw values::FileError(values::InvalidCall,
                                    u"'%1' is not of the form COLUMN=FIELD, with a column of the table and code, name, "
                                    "price, unit, tax or quantity."_s.arg(one));
        columns[column] = *field;
    }
    return columns;
}

QChar SeparatorOf(const QString& word) {
    if (word.isEmpty()) return {};
    if (word == u"tab" || word == u"\\t") return u'\t';
    if (word == u";" || word == u",") return word[0];
    throw values::FileError(values::InvalidCall, u"The separator is ; or , or tab."_s);
}

void Tell(const GoodsPreview& preview, Output& output) {
    for (const GoodsRow& row : preview.rows) {
        if (row.kind == GoodsRow::Kind::Unchanged) continue;
        const QStringList told = row.why.isEmpty() ? row.Changes() : row.why;
        const QByteArrayList cells = {QByteArray::number(row.line), Word(row.kind), WriteText(row.code),
                                      WriteText(told.join(u"; "_s))};
        output.Write(cells.join('\t') + '\n');
    }
    for (const auto kind : {GoodsRow::Kind::New, GoodsRow::Kind::Changed, GoodsRow::Kind::Unchanged,
                            GoodsRow::Kind::LeftOut, GoodsRow::Kind::Refused})
        output.Write(QByteArray::number(preview.Count(kind)) + ' ' + Word(kind) +
                     (kind == GoodsRow::Kind::Refused ? "\n" : ", "));
}

}  // namespace

void Import(const QString& folder, const QString& file, const ImportCall& call) {
    const auto main = OpenStore(folder, Which::Main);
    const TableText table =
        ReadTable(file, {.encoding = call.encoding.toLatin1(), .separator = SeparatorOf(call.separator)});
    ImportChoice choice{.adds = !call.updateOnly,
                        .updates = !call.addOnly,
                        .keepsPrice = call.keepPrice,
                        .keepsQuantity = call.keepQuantity,
                        .unit = call.unit,
                        .tax = call.tax};
    choice.columns = ColumnsOf(call.map, table.rows.front().cells);
    if (!call.decimal.isEmpty()) choice.decimal = call.decimal == u"," ? DecimalSign::Comma : DecimalSign::Point;
    const GoodsPreview preview = PreviewGoods(*main, table, choice);
    Output output;
    Tell(preview, output);
    const int refused = preview.Count(GoodsRow::Kind::Refused);
    if (!call.dryRun && refused > 0 && !call.skipRefused) {
        output.Finish();
        throw values::FileError(
            values::InvalidCall,
            u"%1 rows are refused, and nothing was written; --skip-refused writes the others."_s.arg(refused));
    }
    if (!call.dryRun) {
        const Written written = ImportGoods(*main, folder, preview);
        output.Write("Written: " + QByteArray::number(written.added) + " new, " + QByteArray::number(written.changed) +
                     " changed.\n");
    }
    output.Finish();
}

void UndoImport(const QString& folder) {
    const Written written = upkeep::UndoImport(*OpenStore(folder, Which::Main), folder);
    Output output;
    output.Write("Undone: " + QByteArray::number(written.removed) + " removed, " + QByteArray::number(written.changed) +
                 " as before.\n");
    for (const QString& left : written.leftAlone) output.Write("left alone: " + WriteText(left) + '\n');
    output.Finish();
}

void Export(const QString& folder, const QString& what, const QString& file) {
    const auto main = OpenStore(folder, Which::Main);
    const bool isBook = file.endsWith(u".xlsx", Qt::CaseInsensitive);
    if (what != u"goods" && (what != u"customers" || isBook))
        throw values::FileError(values::InvalidCall, u"What is exported is goods (.csv, .xlsx) or customers (.csv)."_s);
    const int rows = what == u"customers" ? ExportCustomersCsv(*main, file)
                     : isBook             ? ExportGoodsXlsx(*main, file)
                                          : ExportGoodsCsv(*main, file);
    Output output;
    output.Write(QByteArray::number(rows) + " rows\n");
    output.Finish();
}

}  // namespace tool
