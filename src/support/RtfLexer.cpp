#include "support/RtfLexer.h"

#include <QtGlobal>
#include <limits>

namespace {

bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsLineEnd(char c) {
    return c == '\r' || c == '\n';
}

}  // namespace

RtfToken RtfLexer::Next() {
    while (More() && IsLineEnd(rtf_[at_])) ++at_;  // line ends only break the source
    if (!More()) return {};
    switch (rtf_[at_]) {
        case '{':
            ++at_;
            return {RtfToken::GroupOpens};
        case '}':
            ++at_;
            return {RtfToken::GroupCloses};
        case '\\':
            ++at_;
            return Escape();
        default:
            return PlainText();
    }
}

bool RtfLexer::IsAtEnd() const {
    for (qsizetype i = at_; i < rtf_.size(); ++i)
        if (rtf_[i] != '\0' && rtf_[i] != ' ' && !IsLineEnd(rtf_[i])) return false;
    return true;
}

RtfToken RtfLexer::Escape() {
    if (!More()) return {};
    if (IsLetter(rtf_[at_])) return ControlWord();
    const char symbol = Take();
    switch (symbol) {
        case '\'':
            return HexByte();
        case '\\':
        case '{':
        case '}':
            return {RtfToken::Text, QByteArray(1, symbol)};
        case '\r':
        case '\n':
            return {RtfToken::Word, "par"};
        default:
            return {RtfToken::Word, QByteArray(1, symbol)};
    }
}

// Digits that are none give no byte at all.
RtfToken RtfLexer::HexByte() {
    const QByteArray digits = rtf_.mid(at_, 2);
    bool isNumber = false;
    const auto byte = digits.size() == 2 ? digits.toUShort(&isNumber, 16) : ushort{0};
    if (!isNumber) return {RtfToken::Text};
    at_ += 2;
    return {RtfToken::Text, QByteArray(1, static_cast<char>(byte))};
}

RtfToken RtfLexer::ControlWord() {
    RtfToken word{RtfToken::Word, TakeLetters()};
    const bool isNegative = at_ + 1 < rtf_.size() && rtf_[at_] == '-' && IsDigit(rtf_[at_ + 1]);
    if (isNegative) ++at_;
    word.hasValue = More() && IsDigit(rtf_[at_]);
    if (word.hasValue) word.value = isNegative ? -TakeNumber() : TakeNumber();
    if (More() && rtf_[at_] == ' ') ++at_;  // the blank that ends a word is no text
    // So many bytes of a picture or the like, among which braces mean nothing.
    if (word.text == "bin") at_ = qMin(at_ + qMax(word.value, 0), rtf_.size());
    return word;
}

RtfToken RtfLexer::PlainText() {
    const qsizetype start = at_;
    while (More() && rtf_[at_] != '\\' && rtf_[at_] != '{' && rtf_[at_] != '}' && !IsLineEnd(rtf_[at_])) ++at_;
    return {RtfToken::Text, rtf_.mid(start, at_ - start)};
}

QByteArray RtfLexer::TakeLetters() {
    const qsizetype start = at_;
    while (More() && IsLetter(rtf_[at_])) ++at_;
    return rtf_.mid(start, at_ - start);
}

int RtfLexer::TakeNumber() {
    qint64 number = 0;
    while (More() && IsDigit(rtf_[at_]))
        number = qMin<qint64>(number * 10 + (Take() - '0'), std::numeric_limits<int>::max());
    return static_cast<int>(number);
}
