#pragma once

#include <QByteArray>
#include <QString>

#include "store/Schema.h"
#include "values/Value.h"

// Values as tools write and take them, the same under every locale, one a cell of a tab-separated line:
//   date yyyy-mm-dd, time hh:mm:ss, number with a point, no groups and no needless zeros, yes/no True and False;
//   null is nothing, and so is the empty text when written; read back, nothing is a null.
// Inside a text \t, \n, \r, \0 and \\ stand for tab, line feed, carriage return, the zero character and the backslash.
namespace upkeep {

QByteArray WriteValue(const values::Value& value);
QByteArray WriteText(const QString& text);
// An amount in the same form, within a sentence.
QString ShownAmount(values::Money amount);

// The value of a column's type; what is not exactly of the form above throws StoreError 3421.
values::Value ReadValue(const QByteArray& cell, store::Type type);

// Bytes that are no UTF-8 throw StoreError 3421.
QString DecodeUtf8(const QByteArray& bytes);

}  // namespace upkeep
