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

QByteArray RowLine(const store::Listing& rows, qint64 row, int columns) {
    QByteArray line;
    for (int i = 0; i < columns; ++i) {
        if (i > 0) line += '\t';
        line += upkeep::WriteValue(rows.At(row, i));
    }
    return line + '\n';
}

}  // namespace

void Sql(const QString& folder, const QString& text, Which which) {
    const auto database = OpenStore(folder, which);
    if (!AsksForRows(text)) {
        database->Execute(text);
        return;
    }
    auto cursor = database->OpenRecordset(text);
    Output output;
    output.Write(HeaderLine(cursor));
    // In the order of the cursor, but not read one by one, which takes a server long.
    auto rows = cursor.ListNow();
    const qint64 count = rows.WaitFor(1);  // all are here at once
    for (qint64 row = 0; row < count; ++row) output.Write(RowLine(rows, row, cursor.FieldCount()));
    output.Finish();
}

}  // namespace tool
