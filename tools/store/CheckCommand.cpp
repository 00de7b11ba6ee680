#include "Commands.h"
#include "Output.h"
#include "ToolWords.h"
#include "upkeep/CheckRegister.h"
#include "upkeep/ValueText.h"

using upkeep::WriteText;

namespace tool {

void Check(const QString& folder) {
    const upkeep::Findings findings = upkeep::CheckRegister(folder);
    Output output;
    for (const QString& line : findings.NoteLines()) output.Write("note: " + WriteText(line) + '\n');
    for (const QString& line : findings.FactLines()) output.Write(WriteText(line) + '\n');
    if (findings.IsSound()) output.WriteLine(ToolWords::tr("Both stores are sound."));
    output.Finish();
    findings.ThrowDamage();
}

}  // namespace tool
