#include "upkeep/TableLoader.h"

#include <QSet>

#include "upkeep/ValueText.h"
#include "upkeep/Words.h"

using namespace Qt::StringLiterals;
using store::Table;

namespace upkeep {

namespace {

class Loader {
public:
    Loader(store::Database& database, const QString& tableName, QIODevice& lines, const RowLook& look)
        : table_(FindTable(database, tableName)), lines_(lines), look_(look), rows_(OpenTable(database, table_)) {}

    void Run() {
        try {
            if (!ReadLine())
                throw store::StoreError(store::ItemNotFound, Words::tr("There is no line of field names."));
            ReadHeader();
            while (ReadLine()) AddRow();
        } catch (const values::Error& error) {
            throw store::StoreError(error.Number(),
                                    Words::tr("Line %1: %2").arg(QString::number(line_), error.Description()));
        }
    }

private:
    // The cells of the next line; false at the end.
    bool ReadLine() {
        ++line_;
        QByteArray line = lines_.readLine();
        if (line.isEmpty()) return false;
        if (line.endsWith('\n')) line.chop(1);
        if (line.endsWith('\r')) line.chop(1);
        if (line_ == 1 && line.startsWith("\xEF\xBB\xBF")) line.remove(0, 3);
        if (line.contains('\r') || line.contains('\0'))
            throw store::StoreError(store::ConversionFailed,
                                    Words::tr("A control character inside a text is written \\r or \\0."));
        cells_ = line.split('\t');
        return true;
    }

    void ReadHeader() {
        QSet<int> named;
        for (const QByteArray& cell : cells_) {
            const QString name = DecodeUtf8(cell);
            const int column = FindField(table_, name);
            if (named.contains(column))
                throw store::StoreError(store::AmbiguousName,
                                        Words::tr("The field '%1' stands there twice.").arg(name));
            named.insert(column);
            columns_.append(column);
        }
    }

    void AddRow() {
        if (cells_.size() != columns_.size())
            throw store::StoreError(store::ConversionFailed,
                                    Words::tr("%1 cells for %2 fields.").arg(cells_.size()).arg(columns_.size()));
        rows_.AddNew();
        for (qsizetype i = 0; i < cells_.size(); ++i) SetField(rows_, table_.columns[columns_[i]], cells_[i]);
        if (look_) look_(rows_, line_);
        rows_.Update();
    }

    const Table& table_;
    QIODevice& lines_;
    const RowLook& look_;
    store::Recordset rows_;
    QList<int> columns_;
    QList<QByteArray> cells_;
    qint64 line_ = 0;
};

}  // namespace

const Table& FindTable(const store::Database& database, const QString& name) {
    if (const Table* table = database.GetSchema().Find(name)) return *table;
    throw store::StoreError(store::UnknownTable, Words::tr("The store has no table '%1'.").arg(name));
}

store::Recordset OpenTable(store::Database& database, const Table& table) {
    return database.OpenRecordset(u"SELECT * FROM [%1]"_s.arg(table.name));
}

int FindField(const Table& table, const QString& name) {
    const int column = table.Find(name);
    if (column < 0)
        throw store::StoreError(store::UnknownField,
                                Words::tr("The table %1 has no field '%2'.").arg(table.name, name));
    return column;
}

void SetField(store::Recordset& row, const store::Column& column, const QByteArray& cell) {
    try {
        row[column.name] = ReadValue(cell, column.type);
    } catch (const values::Error& error) {
        throw store::StoreError(error.Number(), Words::tr("Field %1: %2").arg(column.name, error.Description()));
    }
}

void LoadRows(store::Database& database, const QString& tableName, QIODevice& lines, const RowLook& look) {
    Loader(database, tableName, lines, look).Run();
}

}  // namespace upkeep
