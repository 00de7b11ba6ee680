#include "store/dialectStore.h"

#include "store/sqlite/QuerySql.h"
#include "values/Numbers.h"

using store::dialect::BoundValue;
using store::dialect::Plan;
using store::dialect::Query;

namespace {

using Statement = std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)>;

sqlite3* OpenInMemory() {
    sqlite3* database = nullptr;
    sqlite3_open(":memory:", &database);
    return database;
}

QString TextOf(sqlite3_value* value) {
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_value_text(value)), sqlite3_value_bytes(value));
}

int CompareFolded(void*, int lengthA, const void* a, int lengthB, const void* b) {
    return QString::fromUtf8(static_cast<const char*>(a), lengthA)
        .compare(QString::fromUtf8(static_cast<const char*>(b), lengthB), Qt::CaseInsensitive);
}

void Val(sqlite3_context* context, int, sqlite3_value** args) {
    if (sqlite3_value_type(args[0]) == SQLITE_NULL) return sqlite3_result_null(context);
    sqlite3_result_double(context, values::Val(TextOf(args[0])));
}

void Like(sqlite3_context* context, int, sqlite3_value** args) {
    sqlite3_result_int(context, TextOf(args[0]) == TextOf(args[1]));
}

QByteArray Quoted(const QString& name) {
    return '"' + name.toUtf8() + '"';
}

struct Bind {
    sqlite3_stmt* statement;
    int position;
    void operator()(std::monostate) const { sqlite3_bind_null(statement, position); }
    void operator()(qint64 whole) const { sqlite3_bind_int64(statement, position, whole); }
    void operator()(double number) const { sqlite3_bind_double(statement, position, number); }
    void operator()(const QByteArray& text) const {
        sqlite3_bind_text(statement, position, text.constData(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
    }
};

}  // namespace

DialectStore::DialectStore(const store::Schema& schema) : database_(OpenInMemory(), sqlite3_close) {
    sqlite3_create_collation(database_.get(), "VELTON", SQLITE_UTF8, nullptr, CompareFolded);
    constexpr int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
    sqlite3_create_function(database_.get(), "velton_val", 1, flags, nullptr, Val, nullptr, nullptr);
    sqlite3_create_function(database_.get(), "velton_like", 2, flags, nullptr, Like, nullptr, nullptr);
    for (const store::Table& table : schema.tables) {
        QByteArray columns;
        for (const store::Column& column : table.columns) {
            const bool text = column.type == store::Type::Text;
            columns +=
                (columns.isEmpty() ? "" : ", ") + Quoted(column.name) + (text ? " TEXT COLLATE VELTON" : " INTEGER");
        }
        RunSql("CREATE TABLE " + Quoted(table.name) + " (" + columns + ")");
        for (const store::Index& index : table.indexes) {
            if (!index.overVal) continue;
            const QString& column = index.columns.front();
            RunSql("CREATE INDEX " + Quoted(table.name + column) + " ON " + Quoted(table.name) + " (velton_val(" +
                   Quoted(column) + "))");
        }
    }
}

QByteArray SqlOf(const Plan& plan) {
    store::sqlite::Pieces pieces = store::sqlite::Emit(plan, {});
    if (pieces.columns.empty()) pieces.columns = "rowid";
    const bool isSelect = plan.kind == Plan::Kind::Select;
    return QByteArray::fromStdString(isSelect ? SelectSql(pieces, false) : ActionSql(plan.kind, pieces));
}

QString DialectStore::Refusal(const Plan& plan) {
    const QByteArray sql = SqlOf(plan);
    sqlite3_stmt* statement = nullptr;
    const int result =
        sqlite3_prepare_v2(database_.get(), sql.constData(), static_cast<int>(sql.size()), &statement, nullptr);
    const int parameters = sqlite3_bind_parameter_count(statement);
    sqlite3_finalize(statement);
    if (result != SQLITE_OK) return QString::fromUtf8(sqlite3_errmsg(database_.get()));
    if (parameters != plan.targets.size()) return QStringLiteral("%1 parameters").arg(parameters);
    return {};
}

QStringList DialectStore::Run(const Query& query) {
    return RunSql(SqlOf(*query.plan), query.values);
}

QStringList DialectStore::RunSql(const QByteArray& sql, const QList<BoundValue>& values) {
    sqlite3_stmt* raw = nullptr;
    sqlite3_prepare_v2(database_.get(), sql.constData(), static_cast<int>(sql.size()), &raw, nullptr);
    const Statement statement(raw, sqlite3_finalize);
    for (int i = 0; i < values.size(); ++i) std::visit(Bind{raw, i + 1}, values[i]);

    QStringList rows;
    int result = sqlite3_step(raw);
    for (; result == SQLITE_ROW; result = sqlite3_step(raw)) {
        QStringList row;
        for (int i = 0; i < sqlite3_column_count(raw); ++i) row += TextOf(sqlite3_column_value(raw, i));
        rows += row.join(u'|');
    }
    if (result != SQLITE_DONE) return {QString::fromUtf8(sqlite3_errmsg(database_.get()))};
    return rows;
}
