#include "values/Error.h"

#include "values/Words.h"

using namespace Qt::StringLiterals;

namespace values {

const char* Error::what() const noexcept {
    try {
        utf8_ = u"%1: %2"_s.arg(QString::number(number_), description_).toUtf8();
        return utf8_.constData();
    } catch (...) {
        return "Error";
    }
}

void ThrowOverflow() {
    throw Error(Overflow, Words::tr("The number is too large."));
}

void ThrowTypeMismatch() {
    throw Error(TypeMismatch, Words::tr("The value is not of the kind that is needed here."));
}

void ThrowInvalidUseOfNull() {
    throw Error(InvalidUseOfNull, Words::tr("A value is needed here, but the field is empty."));
}

}  // namespace values
