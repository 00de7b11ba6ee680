#pragma once

#include <QDate>
#include <optional>

#include "store/Database.h"
#include "upkeep/goods/SheetFile.h"

namespace upkeep {

// A report of the shop as a table: what the till's own reports tell, a row for the finest that they show, with figures
// that a spreadsheet can add up.
struct ShopReport {
    enum class Cell { Text, Day, Number, Price, Amount };  // amounts are those that can be added up
    struct Column {
        QString heading;
        Cell cell = Cell::Text;
    };
    QString name;  // on a command line
    QString title;
    bool hasDays = true;  // else it tells how things stand now
    std::vector<Column> columns;
    QString query;  // of the days from %1 to %2
};

std::vector<ShopReport> ShopReports();
// By its name, whatever the case.
std::optional<ShopReport> FindReport(const QString& name);

// Both days are included. A query that is left (store::Watch) throws store::Cancelled.
Sheet ReadReport(store::Database& main, const ShopReport& report, QDate from, QDate to);
// The sum of a column of amounts; no amount in a row counts as nothing.
values::Money SumOf(const Sheet& sheet, size_t column);

}  // namespace upkeep
