#include "Commands.h"
#include "Output.h"
#include "upkeep/ValueText.h"

using namespace Qt::StringLiterals;

namespace tool {

namespace {

bool AsksForRows(const QString& text) {
    return text.trimmed().startsWith(u"select", Qt::CaseInsensitive);
}

QByteArray HeaderLine(const store::Recordset& rows) {
    QByteArray line;
    for (int i = 0; i < rows.FieldCount(); ++i) {
        if (i > 0) line += '\t';
        line += upkeep::WriteText(rows.FieldName(i));
    }
    return line + '\n';
}

QByteArray RowLine(store::Recordset& rows) {
    QByteArray line;
    for (int i = 0; i < rows.FieldCount(); ++i) {
        if (i > 0) line += '\t';
        line += upkeep::WriteValue(rows[i].Get());
    }
    return line + '\n';
}

// A row that a register deleted since the cursor was opened is none any more.
void WriteRow(store::Recordset& row, Output& output) {
    try {
        output.Write(RowLine(row));
    } catch (const store::StoreError& error) {
        if (error.Number() != store::RowDeleted) throw;
    }
}

}  // namespace

void Sql(const QString& folder, const QString& text, Which which) {
    const auto database = OpenStore(folder, which);
    if (!AsksForRows(text)) {
        database->Execute(text);
        return;
    }
    auto rows = database->OpenRecordset(text);
    Output output;
    output.Write(HeaderLine(rows));
    for (auto& row : rows) WriteRow(row, output);
    output.Finish();
}

}  // namespace tool
