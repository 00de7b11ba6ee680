#include "store/postgres/Arguments.h"

#include <charconv>

#include "store/StoreError.h"

using namespace Qt::StringLiterals;

namespace store::postgres {

namespace {

QByteArray TextOf(auto number) {
    char text[32];
    const auto end = std::to_chars(std::begin(text), std::end(text), number).ptr;
    return {text, end - text};
}

}  // namespace

void Arguments::Add(const dialect::BoundValue& value) {
    if (const auto* text = std::get_if<QByteArray>(&value))
        Add(*text);
    else if (const auto* integer = std::get_if<qint64>(&value))
        Add(*integer);
    else if (const auto* real = std::get_if<double>(&value))
        texts_.push_back(TextOf(*real));
    else
        texts_.emplace_back();
}

void Arguments::Add(qint64 number) {
    texts_.push_back(TextOf(number));
}

void Arguments::Add(QByteArray text) {
    if (text.contains('\0'))
        throw StoreError(ConversionFailed, u"A text with a zero character cannot lie on a server."_s);
    texts_.push_back(text.isNull() ? QByteArray("") : std::move(text));
}

void Arguments::Add(std::span<const qint64> numbers) {
    QByteArray list("{");
    for (const qint64 number : numbers) {
        if (list.size() > 1) list += ',';
        list += TextOf(number);
    }
    texts_.push_back(list + '}');
}

std::vector<const char*> Arguments::Pointers() const {
    std::vector<const char*> pointers;
    pointers.reserve(texts_.size());
    for (const QByteArray& text : texts_) pointers.push_back(text.isNull() ? nullptr : text.constData());
    return pointers;
}

}  // namespace store::postgres
