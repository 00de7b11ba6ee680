#include "store/postgres/Arguments.h"

#include <charconv>

#include "store/StoreError.h"
#include "store/Words.h"

namespace store::postgres {

namespace {

QByteArray NumberText(auto number) {
    char text[32];
    const auto end = std::to_chars(std::begin(text), std::end(text), number).ptr;
    return {text, end - text};
}

QByteArray Checked(QByteArray text) {
    if (text.contains('\0'))
        throw StoreError(ConversionFailed, Words::tr("A text with a zero character cannot lie on a server."));
    return text.isNull() ? QByteArray("") : std::move(text);
}

// A null one for null.
QByteArray TextOf(const dialect::BoundValue& value) {
    if (const auto* text = std::get_if<QByteArray>(&value)) return Checked(*text);
    if (const auto* integer = std::get_if<qint64>(&value)) return NumberText(*integer);
    if (const auto* real = std::get_if<double>(&value)) return NumberText(*real);
    return {};
}

void AppendQuoted(QByteArray& list, const QByteArray& text) {
    list += '"';
    for (const char byte : text) {
        if (byte == '"' || byte == '\\') list += '\\';
        list += byte;
    }
    list += '"';
}

}  // namespace

void Arguments::Add(const dialect::BoundValue& value) {
    texts_.push_back(TextOf(value));
}

void Arguments::Add(qint64 number) {
    texts_.push_back(NumberText(number));
}

void Arguments::Add(QByteArray text) {
    texts_.push_back(Checked(std::move(text)));
}

void Arguments::Add(std::span<const qint64> numbers) {
    QByteArray list("{");
    for (const qint64 number : numbers) {
        if (list.size() > 1) list += ',';
        list += NumberText(number);
    }
    texts_.push_back(list + '}');
}

void Arguments::Add(std::span<const dialect::BoundValue> values) {
    QByteArray list("{");
    for (const dialect::BoundValue& value : values) {
        if (list.size() > 1) list += ',';
        const QByteArray text = TextOf(value);
        if (text.isNull())
            list += "NULL";
        else if (std::holds_alternative<QByteArray>(value))
            AppendQuoted(list, text);
        else
            list += text;
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
