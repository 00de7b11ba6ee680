#include <QSaveFile>

#include "Commands.h"
#include "Output.h"
#include "upkeep/CheckRegister.h"
#include "upkeep/health/HelpReport.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace tool {

void Report(const QString& folder, const QString& file) {
    const QByteArray text = upkeep::HelpReport(folder, upkeep::CheckRegister(folder)).toUtf8();
    if (file.isEmpty()) {
        Output output;
        output.Write(text);
        return output.Finish();
    }
    QSaveFile saved(file);
    if (!saved.open(QIODevice::WriteOnly) || saved.write(text) != text.size() || !saved.commit())
        throw values::FileError(saved, u"write '%1'"_s.arg(file));
}

}  // namespace tool
