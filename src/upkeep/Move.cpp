#include "upkeep/Move.h"

#include <QDir>

#include "store/Creation.h"
#include "store/StorePath.h"
#include "upkeep/ClosedTill.h"
#include "upkeep/DayTotals.h"
#include "upkeep/RowCount.h"
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
        const qint64 rows = CountRows(database, table.name);
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

// The store.ini of a register, ready to point to a server, or into the folder where the address is empty.
class StoreIni : public values::IniEdit {
public:
    StoreIni(const QString& folder, const QString& address) : IniEdit(QDir(folder).filePath(u"store.ini"_s)) {
        const bool toServer = !address.isEmpty();
        Remove(u"main"_s, toServer ? u"path"_s : u"url"_s);
        Set(u"main"_s, toServer ? u"url"_s : u"path"_s, toServer ? address : QString(store::MainFile));
        Prepare();
    }
};

bool LiesIn(const QString& folder, const store::Place& place) {
    return !place.IsServer() && QFileInfo(place.Path()).absoluteDir() == QDir(QDir(folder).absolutePath());
}

// Behind store.ini the shop is in its new place, whatever becomes of the old store.
OldStore PutAside(store::Database& old, const QString& keptAs) {
    try {
        old.Retire();
    } catch (const store::StoreError& error) {
        return {.keptAs = {}, .whyStays = error.Description()};
    }
    return {.keptAs = keptAs, .whyStays = {}};
}

}  // namespace

Moved MoveMainStore(const QString& folder, const QString& address, const Progress& progress) {
    const store::Place target =
        address.isEmpty() ? store::Place(QDir(folder).filePath(store::MainFile)) : store::Place::Server(address);
    const auto source = store::OpenMain(folder);
    source->TakeAlone();
    const Totals before = TotalsOf(*source);
    store::Creation creation(target, store::MainSchema());
    {
        const auto goesOn = [&progress] { return !progress || progress(Words::tr("Copying the shop")); };
        const store::Watch reading(*source, goesOn), writing(creation.Store(), goesOn);
        creation.Store().AddAllOf(*source);
    }
    GoOn(progress, Words::tr("Comparing the copy"));
    RequireSame(before, TotalsOf(creation.Store()));
    GoOn(progress, Words::tr("Putting the shop in its place"));
    StoreIni ini(folder, address);
    const QString keptAs = source->PrepareToRetire();
    creation.Finish();
    ini.PutInPlace();
    return {.tables = static_cast<int>(before.tables.size()),
            .rows = before.rows,
            .days = static_cast<int>(before.days.size()),
            .old = PutAside(*source, keptAs)};
}

OldStore JoinShop(const QString& folder, const QString& address) {
    store::Database::Open(store::Place::Server(address), store::MainSchema());
    const ClosedTill till(folder);  // an open one would go on selling into the old store
    StoreIni ini(folder, address);
    std::unique_ptr<store::Database> own;
    QString keptAs;
    if (const auto place = store::MainPlace(folder); LiesIn(folder, place) && QFileInfo::exists(place.Path())) {
        own = store::OpenMain(folder);
        own->TakeAlone();
        keptAs = own->PrepareToRetire();
    }
    ini.PutInPlace();
    return own ? PutAside(*own, keptAs) : OldStore();
}

}  // namespace upkeep
