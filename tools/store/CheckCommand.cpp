#include <QFileInfo>

#include "Commands.h"
#include "Findings.h"
#include "Output.h"
#include "delivery/TableLoader.h"
#include "delivery/ValueText.h"

using namespace Qt::StringLiterals;

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

void CheckOptions(store::Database& options, Findings& findings) {
    const store::Table& table = delivery::FindTable(options, u"Options"_s);
    auto rows = delivery::OpenTable(options, table);
    int count = 0;
    for (auto& row : rows) {
        ++count;
        for (const store::Column& column : table.columns)
            if (row[column.name].IsNull())
                findings.Note(u"settings without a value, which start-up stops at"_s, column.name);
    }
    if (count != 1)
        findings.Damage(store::NotAStore, u"Options store: Options has %1 rows instead of one."_s.arg(count));
}

}  // namespace

void Check(const QString& folder) {
    Findings findings;
    if (const StorePointer main = CheckFile(folder, Which::Main, findings)) {
        CheckReferences(*main, findings);
        CheckTotals(*main, findings);
    }
    if (const StorePointer options = CheckFile(folder, Which::Options, findings)) CheckOptions(*options, findings);

    Output output;
    for (const QString& line : findings.NoteLines()) output.Write(delivery::WriteText(line) + '\n');
    if (findings.IsSound()) output.Write("Both stores are sound.\n"_ba);
    output.Finish();
    findings.ThrowDamage();
}

}  // namespace tool
