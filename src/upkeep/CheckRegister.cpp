#include "upkeep/CheckRegister.h"

#include <QFile>

#include "store/StorePath.h"
#include "upkeep/Check.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

using StorePointer = std::unique_ptr<store::Database>;

// The open store when it is sound; opening it has looked at its version, tables and columns.
StorePointer CheckStore(const QString& name, const std::function<StorePointer()>& open, Findings& findings) {
    const auto damage = [&](int number, const QString& what) { findings.Damage(number, name + u": "_s + what); };
    try {
        StorePointer database = open();
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

}  // namespace

Findings CheckRegister(const QString& folder) {
    Findings findings;
    // Before the store, so that what is printed meanwhile is in the store already.
    const std::vector<Receipt> ribbon = RibbonOf(folder);
    const StorePointer main = CheckStore(
        u"Main store"_s, [&] { return store::Database::Open(store::MainPlace(folder), store::MainSchema()); },
        findings);
    const StorePointer options = CheckStore(
        u"Options store"_s, [&] { return store::Database::Open(store::OptionsPlace(folder), store::OptionsSchema()); },
        findings);
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
    return findings;
}

}  // namespace upkeep
