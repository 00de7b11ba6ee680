#include <QDir>
#include <QFileInfo>

#include "Commands.h"
#include "Output.h"
#include "upkeep/ValueText.h"
#include "upkeep/goods/GoodsImport.h"
#include "upkeep/goods/GoodsUndo.h"
#include "upkeep/goods/WriteGoods.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;
using namespace upkeep;

namespace tool {

namespace {

QChar SignOf(const QString& word, QStringView known) {
    if (word.isEmpty()) return {};
    if (word == u"tab" && known.contains(u'\t')) return u'\t';
    if (word.size() == 1 && known.contains(word[0])) return word[0];
    throw values::FileError(values::InvalidCall, u"'%1' divides nothing that could be read."_s.arg(word));
}

SheetWish WishOf(const ImportCall& call) {
    SheetWish wish;
    wish.form = {.encoding = call.encoding, .separator = SignOf(call.separator, u",;\t")};
    wish.decimal = SignOf(call.decimal, u",.");
    for (const QString& choice : call.columns) {
        const qsizetype equals = choice.lastIndexOf(u'=');
        if (equals < 1)
            throw values::FileError(values::InvalidCall, u"'%1' is not of the form COLUMN=FIELD."_s.arg(choice));
        wish.columns.append({choice.first(equals), FieldOfWord(choice.sliced(equals + 1))});
    }
    return wish;
}

QByteArray LineOf(const PreviewRow& row, const QByteArrayList& more) {
    return (QByteArrayList{QByteArray::number(row.line), WriteText(row.code), WriteText(KindName(row.kind))} + more)
               .join('\t') +
           '\n';
}

// A line a change, a reason; what stays as it is is only counted.
void Print(const Preview& preview, Output& output) {
    for (const PreviewRow& row : preview.rows) {
        for (const QString& reason : row.reasons) output.Write(LineOf(row, {WriteText(reason)}));
        if (row.kind == RowKind::New) output.Write(LineOf(row, {WriteText(preview.Told(row).join(u", "))}));
        if (row.kind != RowKind::Changed) continue;
        for (const ColumnChange& change : row.change.columns)
            output.Write(LineOf(
                row, {WriteText(ColumnName(change.column)), WriteValue(change.before), WriteValue(change.after)}));
    }
    for (const QString& remark : preview.remarks) output.Write("note: " + WriteText(remark) + '\n');
    QStringList counts;
    for (size_t kind = 0; kind < RowKinds; ++kind)
        counts += u"%1 %2"_s.arg(preview.Count(static_cast<RowKind>(kind))).arg(KindName(static_cast<RowKind>(kind)));
    output.Write(counts.join(u", ").toUtf8() + '\n');
}

void PrintForm(const GoodsSheet& sheet, Output& output) {
    QStringList columns;
    for (qsizetype i = 0; i < sheet.columns.size(); ++i)
        if (sheet.columns[i] != SheetField::None)
            columns += u"%1=%2"_s.arg(sheet.Headings()[i], FieldWord(sheet.columns[i]));
    const QChar separator = sheet.table.form.separator;
    output.Write(u"%1, separator %2, decimals behind %3; %4\n"_s
                     .arg(sheet.table.form.encoding, separator == u'\t' ? u"tab"_s : QString(separator),
                          sheet.decimal.isNull() ? u"an unknown sign"_s : QString(sheet.decimal), columns.join(u", "))
                     .toUtf8());
}

}  // namespace

void Import(const QString& folder, const QString& file, const ImportCall& call) {
    const auto database = OpenStore(folder, Which::Main);
    const GoodsSheet sheet = ReadGoodsSheet(file, WishOf(call));
    const ImportOptions::Rows rows = call.addOnly      ? ImportOptions::Rows::OnlyNew
                                     : call.updateOnly ? ImportOptions::Rows::OnlyKnown
                                                       : ImportOptions::Rows::All;
    const Preview preview = PreviewGoods(*database, sheet,
                                         {.rows = rows,
                                          .keepPrice = call.keepPrice,
                                          .keepQuantity = call.keepQuantity,
                                          .unit = call.unit,
                                          .tax = call.tax});
    Output output;
    PrintForm(sheet, output);
    Print(preview, output);
    output.Finish();
    if (const size_t refused = preview.Count(RowKind::Refused); refused > 0 && !call.skipRefused)
        throw store::StoreError(
            store::ConversionFailed,
            refused == 1
                ? u"1 row is refused, so nothing is written; --skip-refused writes the others."_s
                : u"%1 rows are refused, so nothing is written; --skip-refused writes the others."_s.arg(refused));
    if (call.dryRun) return;
    const Written written = WriteGoods(*database, folder, QFileInfo(file).fileName(), preview.Changes());
    output.Write(u"Written: %1 new, %2 changed.\n"_s.arg(written.added).arg(written.changed).toUtf8());
    if (!written.movedMeanwhile.isEmpty())
        output.Write(u"Sold meanwhile, and taken off: %1\n"_s.arg(written.movedMeanwhile.join(u", ")).toUtf8());
    output.Finish();
}

void UndoImport(const QString& folder) {
    const Undone undone = UndoGoods(*OpenStore(folder, Which::Main), folder);
    Output output;
    for (const QString& line : undone.kept) output.Write("note: " + WriteText(line) + '\n');
    output.Write(u"%1 is taken back: %2 restored, %3 removed, %4 notes.\n"_s.arg(undone.title)
                     .arg(undone.restored)
                     .arg(undone.removed)
                     .arg(undone.kept.size())
                     .toUtf8());
    output.Finish();
}

}  // namespace tool
