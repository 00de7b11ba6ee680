#pragma once

#include <initializer_list>
#include <vector>

#include "store/dialect/Complaint.h"
#include "store/dialect/Lexer.h"

namespace store::dialect {

// A walk over the tokens of one text, with the complaints about what is not there.
class TokenReader {
public:
    TokenReader(const QString& text, const std::vector<Token>& tokens);

    const Token& Peek() const { return tokens_[at_]; }
    bool Sees(Lexeme lexeme) const { return Peek().lexeme == lexeme; }
    // Whether these tokens come next, in this order.
    bool SeesAhead(std::initializer_list<Lexeme> lexemes) const;

    const Token& Advance();
    bool Take(Lexeme lexeme);
    // `what` is a word or sign of the language, or a kind of words, QT_TRANSLATE_NOOP("store", "a table name").
    const Token& Expect(Lexeme lexeme, const char* what);
    const Token& ExpectName(const char* what);
    void ExpectEnd();
    [[noreturn]] void FailExpected(const char* what) const;

    const QString& Text() const { return text_; }
    const Complaint& Fail() const { return fail_; }
    // From the start of a token to the end of the token read last.
    Span SpanFrom(int offset) const;

private:
    const QString& text_;
    const std::vector<Token>& tokens_;
    Complaint fail_;
    size_t at_ = 0;
};

}  // namespace store::dialect
