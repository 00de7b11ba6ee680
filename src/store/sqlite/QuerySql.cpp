#include "store/sqlite/QuerySql.h"

#include "store/SqlText.h"
#include "store/sqlite/Parameter.h"

namespace store::sqlite {

namespace {

std::string Clause(const char* keyword, const std::string& text) {
    return text.empty() ? text : keyword + text;
}

}  // namespace

std::string SelectSql(const Pieces& query, bool withRow) {
    return "SELECT " + std::string(withRow ? "rowid, " : "") + query.columns + " FROM " + query.from +
           Clause(" WHERE ", query.where) + Clause(" GROUP BY ", query.group) + Clause(" HAVING ", query.having) +
           Clause(" ORDER BY ", query.order);
}

std::string RowsSql(const Pieces& query, const std::string& condition) {
    return "SELECT rowid, " + query.columns + " FROM " + query.from + " WHERE " + condition;
}

std::string KeysSql(const Pieces& query, const std::string& condition) {
    return "SELECT rowid FROM " + query.from + " WHERE (" + query.where + ") AND " + condition + " ORDER BY rowid";
}

std::string ActionSql(dialect::Plan::Kind kind, const Pieces& action) {
    if (kind == dialect::Plan::Kind::Update)
        return "UPDATE " + action.from + " SET " + action.set + Clause(" WHERE ", action.where);
    return "DELETE FROM " + action.from + Clause(" WHERE ", action.where);
}

std::string FindSql(const Pieces& criteria) {
    return "SELECT rowid FROM " + criteria.from + Clause(" WHERE ", criteria.where) + " ORDER BY rowid";
}

std::string InsertSql(const Table& table, const ColumnSet& columns) {
    if (columns.empty()) return "INSERT INTO " + Quoted(table.name) + " DEFAULT VALUES";
    std::string names, values;
    for (int parameter = 0; const int column : columns) {
        const std::string separator = parameter == 0 ? "" : ", ";
        names += separator + Quoted(table.columns[column].name);
        values += separator + Parameter(++parameter);
    }
    return "INSERT INTO " + Quoted(table.name) + " (" + names + ") VALUES (" + values + ")";
}

std::string ChangeSql(const Table& table, const ColumnSet& columns, const ColumnSet& expected) {
    int parameter = 0;
    std::string sql = "UPDATE " + Quoted(table.name) + " SET ";
    for (const int column : columns) {
        if (parameter > 0) sql += ", ";
        sql += Quoted(table.columns[column].name) + " = " + Parameter(++parameter);
    }
    sql += " WHERE rowid = " + Parameter(++parameter);
    for (const int column : expected)
        sql += " AND " + Quoted(table.columns[column].name) + " COLLATE BINARY IS " + Parameter(++parameter);
    return sql;
}

}  // namespace store::sqlite
