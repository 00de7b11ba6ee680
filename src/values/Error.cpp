#include "values/Error.h"

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
    throw Error(Overflow, u"The number is too large."_s);
}

void ThrowTypeMismatch() {
    throw Error(TypeMismatch, u"The value is not of the kind that is needed here."_s);
}

void ThrowInvalidUseOfNull() {
    throw Error(InvalidUseOfNull, u"A value is needed here, but the field is empty."_s);
}

}  // namespace values
