#include "upkeep/Move.h"

#include <QDir>

#include "store/Creation.h"
#include "store/StorePath.h"
#include "upkeep/DayTotals.h"
#include "upkeep/Words.h"
#include "values/IniEdit.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

struct Totals {
    QStringList tables;  // a line each, with its number of rows
    DayTotals days;
    qint64 rows = 0;
    bool operator==(const Totals&) const = default;
};

Totals TotalsOf(store::Database& database) {
    Totals totals;
    for (const store::Table& table : database.GetSchema().tables) {
        const qint64 rows = database.OpenSnapshot(u"SELECT Count(*) AS N FROM [%1]"_s.arg(table.name))[0].Whole();
        totals.tables += u"%1 %2"_s.arg(table.name).arg(rows);
        totals.rows += rows;
    }
    totals.days = ReadDayTotals(database);
    return totals;
}

void RequireSame(const Totals& before, const Totals& after) {
    if (before == after) return;
    throw store::StoreError(store::NotAStore, Words::tr("The copy of the store is not the same; nothing was changed."));
}

}  // namespace

Moved MoveMainStore(const QString& folder, const QString& address) {
    const store::Place target =
        address.isEmpty() ? store::Place(QDir(folder).filePath(store::MainFile)) : store::Place::Server(address);
    const auto source = store::OpenMain(folder);
    source->TakeAlone();
    const Totals before = TotalsOf(*source);
    store::Creation creation(target, store::MainSchema());
    creation.Store().AddAllOf(*source);
    RequireSame(before, TotalsOf(creation.Store()));
    values::IniEdit ini(QDir(folder).filePath(u"store.ini"_s));
    const bool toServer = target.IsServer();
    ini.Remove(u"main"_s, toServer ? u"path"_s : u"url"_s);
    ini.Set(u"main"_s, toServer ? u"url"_s : u"path"_s, toServer ? address : QString(store::MainFile));
    ini.Prepare();
    const QString keptAs = source->PrepareToRetire();
    creation.Finish();
    ini.PutInPlace();
    source->Retire();
    return {.tables = static_cast<int>(before.tables.size()),
            .rows = before.rows,
            .days = static_cast<int>(before.days.size()),
            .keptAs = keptAs};
}

}  // namespace upkeep
