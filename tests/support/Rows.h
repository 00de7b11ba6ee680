#pragma once

#include <QStringList>

#include "store/Database.h"

// Rows of a store as texts.
namespace drivers {

// Of a query, a text a row, fields joined by "|".
QStringList RowsOf(store::Database& store, const QString& query);
// Gives fields to the row being edited: "NAME=TEXT | NAME=TEXT".
void SetFields(store::Recordset& rows, const QString& fields);
// New rows of a table, each with such fields.
void AddRows(store::Database& store, const QString& table, const QStringList& rows);

}  // namespace drivers
