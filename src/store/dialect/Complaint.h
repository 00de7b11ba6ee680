#pragma once

#include "store/StoreError.h"

namespace store::dialect {

// The voice in which one stage refuses one query text.
class Complaint {
public:
    Complaint(Stage stage, const QString& text) : stage_(stage), text_(text) {}

    [[noreturn]] void operator()(int number, Span span, const QString& message, const QStringList& near = {}) const {
        throw QueryError(stage_, number, span, message, text_, near);
    }

private:
    Stage stage_;
    const QString& text_;
};

}  // namespace store::dialect
