#include "Commands.h"
#include "Output.h"
#include "upkeep/health/SupportReport.h"
#include "values/FileError.h"

namespace tool {

void Report(const QString& folder, const QString& file) {
    const QByteArray text = upkeep::SupportReport(folder).toUtf8();
    if (!file.isEmpty()) return values::SaveFile(file, text);
    Output output;
    output.Write(text);
    output.Finish();
}

}  // namespace tool
