#pragma once

#include <QList>
#include <QString>

#include "values/Value.h"

namespace store {

// How a column or expression is typed. Money, Decimal and Quantity are alike exact integers scaled by 10 000; the name
// tells what they are for.
enum class Type { Null, Text, Whole, Money, Decimal, Quantity, Double, Date, Time, YesNo };

constexpr bool IsScaled(Type type) {
    return type == Type::Money || type == Type::Decimal || type == Type::Quantity;
}
constexpr bool IsNumber(Type type) {
    return IsScaled(type) || type == Type::Whole || type == Type::Double || type == Type::YesNo;
}

struct Column {
    QString name;
    Type type = Type::Text;
    values::Value byDefault = {};
    bool selfNumbering = false;
};

// An index over columns, or over Val(column) when `overVal` is set, since next numbers are looked for that way.
struct Index {
    QStringList columns;
    bool unique = false;
    bool overVal = false;
};

// What an index is called in every store.
QString IndexName(const QString& table, const Index& index);

struct Table {
    QString name;
    QList<Column> columns;
    QList<Index> indexes;

    // Position of a column by name, case ignored; -1 when there is none.
    int Find(QStringView column) const;
};

// The one table of tables: it makes a new store, binds queries, and carries older stores forward.
struct Schema {
    QString name;
    int version = 1;
    QList<Table> tables;

    const Table* Find(QStringView table) const;
};

// Products.Tab is a place on the touch table, from 0: so many on each of its tabs, in the order of TabControl.
inline constexpr int PlacesPerTab = 32;

const Schema& MainSchema();     // ORVA.pos
const Schema& OptionsSchema();  // opt.pos

}  // namespace store
