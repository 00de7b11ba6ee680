#include "core/KeptErrors.h"

#include "forms/Program.h"
#include "output/Folder.h"
#include "values/Clock.h"
#include "values/Error.h"
#include "values/ErrorLog.h"

using namespace Qt::StringLiterals;

void KeepErrors(const QString& program) {
    forms::OnUntrappedError([program](const std::exception& error) {
        const auto* known = dynamic_cast<const values::Error*>(&error);
        values::LogError(output::InProgramFolder(u"errors.log"_s), values::Now(), program,
                         known ? known->Number() : int{values::InternalError},
                         known ? known->Description() : QString::fromUtf8(error.what()));
    });
}
