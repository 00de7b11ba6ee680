#include "store/sqlite/QuerySql.h"

#include "store/sqlite/SqliteSchema.h"

namespace store::sqlite {

namespace {

std::string Clause(const char* keyword, const std::string& text) {
    return text.empty() ? text : keyword + text;
}

QStringList NamesOf(const Table& table, quint64 columns) {
    QStringList names;
    for (int i = 0; i < table.columns.size(); ++i)
        if ((columns >> i & 1) != 0) names += table.columns[i].name;
    return names;
}

}  // namespace

std::string SelectSql(const dialect::Plan& plan, bool withRow) {
    return "SELECT " + std::string(withRow ? "rowid, " : "") + plan.columns + " FROM " + plan.from +
           Clause(" WHERE ", plan.where) + Clause(" GROUP BY ", plan.group) + Clause(" HAVING ", plan.having) +
           Clause(" ORDER BY ", plan.order);
}

std::string RowsSql(const dialect::Plan& plan, const std::string& condition) {
    return "SELECT rowid, " + plan.columns + " FROM " + plan.from + " WHERE " + condition;
}

std::string KeysSql(const dialect::Plan& plan, const std::string& condition) {
    return "SELECT rowid FROM " + plan.from + " WHERE (" + plan.where + ") AND " + condition + " ORDER BY rowid";
}

std::string ActionSql(const dialect::Plan& plan) {
    const std::string table = Quoted(plan.table->name);
    if (plan.kind == dialect::Plan::Kind::Update)
        return "UPDATE " + table + " SET " + plan.set + Clause(" WHERE ", plan.where);
    return "DELETE FROM " + table + Clause(" WHERE ", plan.where);
}

std::string FindSql(const Table& table, const dialect::Plan& criteria) {
    return "SELECT rowid FROM " + Quoted(table.name) + Clause(" WHERE ", criteria.where) + " ORDER BY rowid";
}

std::string InsertSql(const Table& table, quint64 columns) {
    if (columns == 0) return "INSERT INTO " + Quoted(table.name) + " DEFAULT VALUES";
    std::string names, values;
    for (int parameter = 0; const QString& name : NamesOf(table, columns)) {
        const std::string separator = parameter == 0 ? "" : ", ";
        names += separator + Quoted(name);
        values += separator + Parameter(++parameter);
    }
    return "INSERT INTO " + Quoted(table.name) + " (" + names + ") VALUES (" + values + ")";
}

std::string ChangeSql(const Table& table, quint64 columns, quint64 expected) {
    int parameter = 0;
    std::string sql = "UPDATE " + Quoted(table.name) + " SET ";
    for (const QString& name : NamesOf(table, columns)) {
        if (parameter > 0) sql += ", ";
        sql += Quoted(name) + " = " + Parameter(++parameter);
    }
    sql += " WHERE rowid = " + Parameter(++parameter);
    for (const QString& name : NamesOf(table, expected))
        sql += " AND " + Quoted(name) + " COLLATE BINARY IS " + Parameter(++parameter);
    return sql;
}

std::string Parameter(int number) {
    return std::string("?").append(std::to_string(number));
}

}  // namespace store::sqlite
