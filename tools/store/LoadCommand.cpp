#include <QFile>
#include <cstdio>

#include "Commands.h"
#include "upkeep/Findings.h"
#include "upkeep/GoodsFaults.h"
#include "upkeep/TableLoader.h"
#include "upkeep/ValueText.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;
using namespace upkeep;

namespace tool {

namespace {

void Warn(const Findings& findings) {
    for (const QString& line : findings.NoteLines())
        std::fputs(("warning: " + WriteText(line) + '\n').constData(), stderr);
}

// Goods that the till could not sell go in all the same, but not without a word.
RowLook LookAtGoods(store::Database& database, Findings& findings) {
    return [faults = GoodsFaults(database), &findings](store::Recordset& row, qint64 line) {
        for (const upkeep::GoodsFault& fault : faults.Of(row))
            findings.Note(fault.words, u"line %1"_s.arg(line), fault.kind);
    };
}

}  // namespace

void Load(const QString& folder, const QString& table, const QString& file) {
    const auto database = OpenStore(folder, Which::Main);
    QFile lines(file);
    if (!lines.open(QIODevice::ReadOnly)) throw values::FileError(lines, u"read '%1'"_s.arg(file));
    Findings findings;
    const bool areGoods = FindTable(*database, table).name == u"Products";
    store::Database::Batch batch(*database);
    LoadRows(*database, table, lines, areGoods ? LookAtGoods(*database, findings) : RowLook());
    if (lines.error() != QFileDevice::NoError) throw values::FileError(lines, u"read '%1'"_s.arg(file));
    batch.Commit();
    Warn(findings);
}

}  // namespace tool
