#pragma once

#include "store/StoreError.h"

namespace store::dialect {

// The voice in which each stage refuses one query text.
class Complaint {
public:
    explicit Complaint(const QString& text) : text_(text) {}

    [[noreturn]] void operator()(int number, Span span, const QString& message, const QStringList& near = {}) const {
        throw QueryError(number, span, message, text_, near);
    }

private:
    const QString& text_;
};

}  // namespace store::dialect
