#include <QFile>

#include "Commands.h"
#include "Output.h"
#include "upkeep/Check.h"
#include "upkeep/ValueText.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;
using namespace upkeep;

namespace tool {

namespace {

using StorePointer = std::unique_ptr<store::Database>;

// The open store when it is sound; opening it has looked at its version, tables and columns.
StorePointer CheckFile(const QString& folder, Which which, Findings& findings) {
    const auto damage = [&](int number, const QString& what) {
        findings.Damage(number, (which == Which::Main ? u"Main store: "_s : u"Options store: "_s) + what);
    };
    try {
        StorePointer database = OpenStore(folder, which);
        const QStringList faults = database->CheckIntegrity();
        for (const QString& fault : faults) damage(store::NotAStore, fault);
        return faults.isEmpty() ? std::move(database) : nullptr;
    } catch (const store::StoreError& error) {
        damage(error.Number(), error.Description());
        return nullptr;
    }
}

std::vector<Receipt> RibbonOf(const QString& folder) {
    QFile ribbon(folder + u"/invoices.txt"_s);
    if (!ribbon.exists()) return {};
    if (!ribbon.open(QIODevice::ReadOnly)) throw values::FileError(ribbon, u"read '%1'"_s.arg(ribbon.fileName()));
    return ReadRibbon(ribbon);
}

bool WritesRibbon(store::Database* options) {
    if (options == nullptr) return false;
    auto row = options->OpenRecordset(u"SELECT TrakaRacunaFileDA FROM Options"_s);
    return !row.AtEOF() && !row[0].IsNull() && row[0].YesNo();
}

void Print(const Findings& findings) {
    Output output;
    for (const QString& line : findings.NoteLines()) output.Write("note: " + WriteText(line) + '\n');
    for (const QString& line : findings.FactLines()) output.Write(WriteText(line) + '\n');
    if (findings.IsSound()) output.Write("Both stores are sound.\n"_ba);
    output.Finish();
}

}  // namespace

void Check(const QString& folder) {
    Findings findings;
    // Before the store, so that what is printed meanwhile is in the store already.
    const std::vector<Receipt> ribbon = RibbonOf(folder);
    const StorePointer main = CheckFile(folder, Which::Main, findings);
    const StorePointer options = CheckFile(folder, Which::Options, findings);
    if (main) {
        const SalesBook book = ReadSalesBook(*main);
        const DistinctKeys products = KeysOf(*main, {u"Products"_s, u"ProdCode"_s});
        CheckIndexes(*main, findings);
        CheckSales(*main, book, products, findings);
        CheckGoods(*main, products, findings);
        CheckRibbon(ribbon, WritesRibbon(options.get()), book, findings);
        CheckPeriods(book, findings);
    }
    if (options) CheckSettings(*options, findings);
    Print(findings);
    findings.ThrowDamage();
}

}  // namespace tool
