#include "support/Rows.h"

using namespace Qt::StringLiterals;

namespace drivers {

QStringList RowsOf(store::Database& store, const QString& query) {
    auto rs = store.OpenRecordset(query);
    QStringList rows;
    for (auto& row : rs) {
        QStringList cells;
        for (int column = 0; column < row.FieldCount(); ++column) cells << row[column].TextOrEmpty();
        rows << cells.join(u'|');
    }
    return rows;
}

void SetFields(store::Recordset& rows, const QString& fields) {
    for (const QString& field : fields.split(u" | "_s, Qt::SkipEmptyParts))
        rows[field.section(u'=', 0, 0)] = field.section(u'=', 1);
}

void AddRows(store::Database& store, const QString& table, const QStringList& rows) {
    auto rs = store.OpenRecordset(u"SELECT * FROM "_s + table);
    for (const QString& row : rows) {
        rs.AddNew();
        SetFields(rs, row);
        rs.Update();
    }
}

}  // namespace drivers
