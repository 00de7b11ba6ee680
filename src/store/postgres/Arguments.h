#pragma once

#include <QByteArray>
#include <span>
#include <vector>

#include "store/dialect/Plan.h"

namespace store::postgres {

// What a statement's parameters are bound to, in the texts that the server reads; each parameter says its type in the
// SQL. A text with a zero character throws 3421, since the server's texts cannot hold one.
class Arguments {
public:
    Arguments() = default;
    explicit Arguments(qint64 number) { Add(number); }

    void Add(const dialect::BoundValue& value);
    void Add(qint64 number);
    void Add(QByteArray text);
    // As one array.
    void Add(std::span<const qint64> numbers);
    void Add(std::span<const dialect::BoundValue> values);

    int Count() const { return static_cast<int>(texts_.size()); }
    // As the client library takes them; they stay valid until the next Add.
    std::vector<const char*> Pointers() const;

private:
    std::vector<QByteArray> texts_;  // a null one is a null
};

}  // namespace store::postgres
