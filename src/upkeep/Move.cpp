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

bool IsPlace(const QByteArray& line) {
    const QByteArray key = line.split('=').first().trimmed().toLower();
    return line.contains('=') && (key == "path" || key == "url");
}

// The ini with this line in its section [main] in the place of those that stand there; all else stays byte for byte.
QByteArray WithPlace(const QByteArray& ini, const QByteArray& place) {
    QByteArrayList lines;
    bool isInMain = false, isSaid = false;
    for (const QByteArray& line : ini.split('\n')) {
        const QByteArray word = line.trimmed();
        if (word.startsWith('[')) isInMain = word.toLower() == "[main]";
        if (!isInMain || !IsPlace(line)) lines += line;
        if (isInMain && !isSaid && (word.startsWith('[') || IsPlace(line))) {
            lines += place;
            isSaid = true;
        }
    }
    if (!isSaid) lines = QByteArrayList{"[main]", place} + lines;
    return lines.join('\n');
}

// A store.ini that points elsewhere, made ready before anything else is done.
class NewIni {
public:
    NewIni(const QString& folder, const QByteArray& place) : file_(QDir(folder).filePath(u"store.ini"_s)) {
        QFile before(file_.fileName());
        QByteArray text;
        if (before.exists()) {
            if (!before.open(QIODevice::ReadOnly))
                throw values::FileError(before, u"read '%1'"_s.arg(before.fileName()));
            text = before.readAll();
        }
        if (text.contains('\0'))
            throw values::FileError(values::InvalidCall,
                                    u"'%1' is not in UTF-8 and cannot be changed."_s.arg(file_.fileName()));
        const QByteArray changed = WithPlace(text, place);
        if (!file_.open(QIODevice::WriteOnly) || !file_.setPermissions(QFile::ReadOwner | QFile::WriteOwner) ||
            file_.write(changed) != changed.size() || !file_.flush())
            throw values::FileError(file_, u"write '%1'"_s.arg(file_.fileName()));
    }
    void PutInPlace() {
        if (!file_.commit()) throw values::FileError(file_, u"write '%1'"_s.arg(file_.fileName()));
    }

private:
    QSaveFile file_;
};

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
    NewIni ini(folder, target.IsServer() ? "url=" + address.toUtf8() : "path=" + QString(store::MainFile).toUtf8());
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
