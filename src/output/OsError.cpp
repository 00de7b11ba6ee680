#include "output/OsError.h"

#include "output/Channel.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace output {

void ThrowOsError(const QString& action, int errnoValue) {
    throw OutputError(values::NumberOfOsError(errnoValue), action + u": "_s + qt_error_string(errnoValue) + u'.');
}

}  // namespace output
