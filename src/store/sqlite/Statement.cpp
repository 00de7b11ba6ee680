#include "store/sqlite/Statement.h"

#include "store/Words.h"
#include "store/sqlite/SqliteError.h"

namespace store::sqlite {

Statement::Statement(sqlite3* connection, const std::string& sql) {
    const int code = sqlite3_prepare_v3(connection, sql.c_str(), static_cast<int>(sql.size() + 1),
                                        SQLITE_PREPARE_PERSISTENT, &statement_, nullptr);
    if (code != SQLITE_OK) ThrowLast(connection, Words::tr("preparing %1").arg(QString::fromStdString(sql)));
}

void Statement::Bind(int parameter, const dialect::BoundValue& value) {
    if (const auto* text = std::get_if<QByteArray>(&value))
        Check(sqlite3_bind_text64(statement_, parameter, text->constData(), static_cast<sqlite3_uint64>(text->size()),
                                  SQLITE_STATIC, SQLITE_UTF8));
    else if (const auto* integer = std::get_if<qint64>(&value))
        Check(sqlite3_bind_int64(statement_, parameter, *integer));
    else if (const auto* real = std::get_if<double>(&value))
        Check(sqlite3_bind_double(statement_, parameter, *real));
    else
        Check(sqlite3_bind_null(statement_, parameter));
}

void Statement::Bind(int parameter, qint64 integer) {
    Check(sqlite3_bind_int64(statement_, parameter, integer));
}

void Statement::BindAll(const QList<dialect::BoundValue>& values) {
    const int used = std::min(static_cast<int>(values.size()), Parameters());
    for (int i = 0; i < used; ++i) Bind(i + 1, values[i]);
}

bool Statement::Step() {
    const int code = sqlite3_step(statement_);
    if (code == SQLITE_ROW) return true;
    if (code == SQLITE_DONE) return false;
    Check(code);
    return false;
}

QString Statement::Text(int column) const {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
    return QString::fromUtf8(text, sqlite3_column_bytes(statement_, column));
}

void Statement::AppendRow(RowBlock& rows, int first) const {
    using Kind = RowBlock::Cell::Kind;
    RowBlock::Cell* cell = rows.AddRow();
    const int columns = sqlite3_data_count(statement_);
    for (int i = first; i < columns; ++i, ++cell) {
        sqlite3_value* value = sqlite3_column_value(statement_, i);
        switch (sqlite3_value_type(value)) {
            case SQLITE_INTEGER:
                cell->kind = Kind::Integer;
                cell->integer = sqlite3_value_int64(value);
                break;
            case SQLITE_FLOAT:
                cell->kind = Kind::Real;
                cell->real = sqlite3_value_double(value);
                break;
            case SQLITE_NULL:
                break;
            default: {
                const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
                rows.SetText(*cell, text, sqlite3_value_bytes(value));
            }
        }
    }
}

void Statement::Check(int code) const {
    if (code != SQLITE_OK) ThrowLast(sqlite3_db_handle(statement_), Words::tr("running a query"));
}

}  // namespace store::sqlite
