#include "output/OsError.h"

#include "output/Channel.h"
#include "values/FileError.h"

namespace output {

void ThrowOsError(const QString& words, const QString& name, int errnoValue) {
    throw OutputError(values::NumberOfOsError(errnoValue), words.arg(name, qt_error_string(errnoValue)));
}

}  // namespace output
