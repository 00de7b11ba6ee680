#include <sqlite3.h>
#include <stdio.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>

#include "store/SqlText.h"
#include "store/StoreError.h"
#include "store/Words.h"
#include "store/sqlite/Parameter.h"
#include "store/sqlite/PreparedPlan.h"
#include "values/Clock.h"

using namespace Qt::StringLiterals;

namespace store::sqlite {

namespace {

constexpr int RowsEach = 512;

std::string ColumnNames(const Table& table) {
    std::string names;
    for (const Column& column : table.columns) AppendTo(names, Quoted(column.name));
    return names;
}

// A column that numbers itself is the identity, which goes ahead of them all.
std::string AddSql(const Table& table) {
    std::string names = "rowid", values = Parameter(1);
    for (int parameter = 1; const Column& column : table.columns) {
        ++parameter;
        if (column.selfNumbering) continue;
        AppendTo(names, Quoted(column.name));
        AppendTo(values, Parameter(parameter));
    }
    return "INSERT INTO " + Quoted(table.name) + " (" + names + ") VALUES (" + values + ")";
}

qint64 LastKeyOf(sqlite3* connection, const Table& table) {
    Statement statement(connection, "SELECT seq FROM sqlite_sequence WHERE name = ?1");
    const dialect::BoundValue name = table.name.toUtf8();
    statement.Bind(1, name);
    return statement.Step() ? statement.Integer(0) : 0;
}

void SetLastKey(sqlite3* connection, const Table& table, qint64 last) {
    for (const char* sql : {"INSERT INTO sqlite_sequence (name, seq) SELECT ?1, 0 "
                            "WHERE NOT EXISTS (SELECT 1 FROM sqlite_sequence WHERE name = ?1)",
                            "UPDATE sqlite_sequence SET seq = max(seq, ?2) WHERE name = ?1"}) {
        Statement statement(connection, sql);
        const dialect::BoundValue name = table.name.toUtf8();
        statement.Bind(1, name);
        if (statement.Parameters() > 1) statement.Bind(2, last);
        statement.Step();
    }
}

}  // namespace

void SqliteEngine::ReadStore(const Schema& schema, const std::function<void(const Table&, const StoredRows&)>& take) {
    const Connection::Moment moment(*connection_);
    for (const Table& table : schema.tables) {
        const qint64 lastKey = LastKeyOf(Handle(), table);
        Statement statement(Handle(),
                            "SELECT rowid, " + ColumnNames(table) + " FROM " + Quoted(table.name) + " ORDER BY rowid");
        bool isLast = false;
        while (!isLast) {
            StoredRows block;
            block.lastKey = lastKey;
            block.rows.Clear(static_cast<int>(table.columns.size()));
            while (!isLast && block.rows.Rows() < RowsEach) {
                isLast = !statement.Step();
                if (isLast) break;
                block.keys.push_back(statement.Integer(0));
                statement.AppendRow(block.rows, 1);
            }
            take(table, block);
        }
    }
}

void SqliteEngine::AddRows(const Table& table, const StoredRows& rows) {
    Statement statement(Handle(), AddSql(table));
    for (int row = 0; row < rows.rows.Rows(); ++row) {
        const StatementUse use(statement);
        statement.Bind(1, rows.keys[static_cast<size_t>(row)]);
        std::vector<dialect::BoundValue> values;
        for (int column = 0; column < table.columns.size(); ++column) values.push_back(rows.rows.ValueAt(row, column));
        for (int column = 0; column < table.columns.size(); ++column)
            if (!table.columns[column].selfNumbering) statement.Bind(column + 2, values[static_cast<size_t>(column)]);
        Write(statement);
    }
    SetLastKey(Handle(), table, rows.lastKey);
}

// Without a log the store is one file; the engine gives it up only where nobody else has the store open.
void SqliteEngine::TakeAlone() {
    RequireOwnFiles();
    connection_->Run("PRAGMA locking_mode = EXCLUSIVE");
    if (connection_->Text("PRAGMA journal_mode = DELETE") != u"delete") {
        connection_->Run("PRAGMA locking_mode = NORMAL");
        throw StoreError(StoreLocked, Words::tr("Another program has the store %1 open.").arg(files_.StorePath()));
    }
    connection_->Run("BEGIN EXCLUSIVE");
}

QString SqliteEngine::PrepareToRetire() {
    const QFileInfo store(files_.StorePath());
    if (!QFileInfo(store.absolutePath()).isWritable())
        throw StoreError(ReadOnly, Words::tr("The store %1 cannot be renamed.").arg(store.filePath()));
    retiresAs_ = u"%1/%2-moved-%3.%4"_s.arg(store.absolutePath(), store.completeBaseName(),
                                            values::Now().toString(u"yyyyMMdd-HHmmss"_s), store.suffix());
    return retiresAs_;
}

void SqliteEngine::Retire() {
    isLost_ = true;  // the engine would look for files that are gone
    if (!QFile::rename(files_.StorePath(), retiresAs_))
        throw StoreError(DiskError, Words::tr("The store %1 cannot be renamed.").arg(files_.StorePath()));
    sqlite3_exec(Handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

// With a second name for the old file there is a store in the place at every moment.
void SqliteEngine::RetireFor(const Place& successor) {
    const QByteArray place = QFile::encodeName(files_.StorePath());
    if (::link(place.constData(), QFile::encodeName(retiresAs_).constData()) != 0) {
        Retire();
    } else {
        isLost_ = true;
    }
    if (::rename(QFile::encodeName(successor.Path()).constData(), place.constData()) != 0)
        throw StoreError(DiskError, Words::tr("The store %1 cannot be renamed.").arg(successor.Path()));
    if (InTransaction()) sqlite3_exec(Handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

}  // namespace store::sqlite
