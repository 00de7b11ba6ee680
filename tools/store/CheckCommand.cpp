#include "Commands.h"
#include "Output.h"
#include "upkeep/CheckRegister.h"
#include "upkeep/ValueText.h"

using namespace Qt::StringLiterals;
using upkeep::WriteText;

namespace tool {

void Check(const QString& folder) {
    const upkeep::Findings findings = upkeep::CheckRegister(folder);
    Output output;
    for (const QString& line : findings.NoteLines()) output.Write("note: " + WriteText(line) + '\n');
    for (const QString& line : findings.FactLines()) output.Write(WriteText(line) + '\n');
    if (findings.IsSound()) output.Write("Both stores are sound.\n"_ba);
    output.Finish();
    findings.ThrowDamage();
}

}  // namespace tool
