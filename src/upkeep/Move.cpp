#include "upkeep/Move.h"

#include <QDir>
#include <QSaveFile>

#include "store/Creation.h"
#include "store/StorePath.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

struct Totals {
    QStringList tables;  // a line each, with its number of rows
    QStringList days;    // with invoices, takings and tax
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
    auto days = database.OpenSnapshot(
        u"SELECT DateSold, Count(*) AS N, Sum(CashAmount) AS Cash, Sum(TaxTotal) AS Tax FROM Invoices GROUP BY DateSold"_s);
    for (auto& day : days) {
        QStringList cells;
        for (int i = 0; i < day.FieldCount(); ++i) cells += day[i].TextOrEmpty();
        totals.days += cells.join(u' ');
    }
    return totals;
}

void RequireSame(const Totals& before, const Totals& after) {
    if (before == after) return;
    throw store::StoreError(store::NotAStore, u"The copy of the store is not the same; nothing was changed."_s);
}

bool IsMainStore(const QString& line) {
    const QString key = line.section(u'=', 0, 0).trimmed();
    return line.contains(u'=') &&
           (key.compare(u"path"_s, Qt::CaseInsensitive) == 0 || key.compare(u"url"_s, Qt::CaseInsensitive) == 0);
}

// Lines of words stay as they are.
void PointTo(const QString& folder, const store::Place& target, const QString& address) {
    const QString path = QDir(folder).filePath(u"store.ini"_s);
    QStringList lines;
    QFile before(path);
    if (before.open(QIODevice::ReadOnly))
        for (const QString& line : QString::fromUtf8(before.readAll()).split(u'\n'))
            if (!IsMainStore(line) && line.trimmed().toLower() != u"[main]" && !line.trimmed().isEmpty())
                lines += line.trimmed();
    before.close();
    if (target.IsServer()) lines = QStringList{u"[main]"_s, u"url="_s + address} + lines;
    if (lines.isEmpty()) {
        if (!before.remove()) throw values::FileError(before, u"remove '%1'"_s.arg(path));
        return;
    }
    QSaveFile ini(path);
    if (!ini.open(QIODevice::WriteOnly)) throw values::FileError(ini, u"write '%1'"_s.arg(path));
    ini.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    ini.write(lines.join(u'\n').toUtf8() + '\n');
    if (!ini.commit()) throw values::FileError(ini, u"write '%1'"_s.arg(path));
}

}  // namespace

Moved MoveMainStore(const QString& folder, const QString& address) {
    const store::Place target =
        address.isEmpty() ? store::Place(QDir(folder).filePath(store::MainFile)) : store::Place::Server(address);
    const auto source = store::Database::Open(store::MainPlace(folder), store::MainSchema());
    source->TakeAlone();
    const Totals before = TotalsOf(*source);
    store::Creation creation(target, store::MainSchema());
    creation.Store().AddAllOf(*source);
    RequireSame(before, TotalsOf(creation.Store()));
    creation.Finish();
    PointTo(folder, target, address);
    return {.tables = static_cast<int>(before.tables.size()),
            .rows = before.rows,
            .days = static_cast<int>(before.days.size()),
            .keptAs = source->Retire()};
}

}  // namespace upkeep
