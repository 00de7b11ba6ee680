#include "store/dialect/TokenReader.h"

#include <algorithm>

#include "store/Words.h"

using namespace Qt::StringLiterals;

namespace store::dialect {

TokenReader::TokenReader(const QString& text, const std::vector<Token>& tokens)
    : text_(text), tokens_(tokens), fail_(text) {}

bool TokenReader::SeesAhead(std::initializer_list<Lexeme> lexemes) const {
    return std::equal(lexemes.begin(), lexemes.end(), tokens_.begin() + static_cast<std::ptrdiff_t>(at_),
                      tokens_.begin() + static_cast<std::ptrdiff_t>(std::min(at_ + lexemes.size(), tokens_.size())),
                      [](Lexeme lexeme, const Token& token) { return token.lexeme == lexeme; });
}

const Token& TokenReader::Advance() {
    const Token& token = tokens_[at_];
    if (token.lexeme != Lexeme::End) ++at_;
    return token;
}

bool TokenReader::Take(Lexeme lexeme) {
    if (!Sees(lexeme)) return false;
    Advance();
    return true;
}

const Token& TokenReader::Expect(Lexeme lexeme, const char* what) {
    if (!Sees(lexeme)) FailExpected(what);
    return Advance();
}

const Token& TokenReader::ExpectName(const char* what) {
    if (IsKeyword(Peek().lexeme)) {
        fail_(SyntaxError, Peek().span,
              Words::tr("Expected %1, found the keyword %2, which is a name only in square brackets.")
                  .arg(Words::tr(what), Written(text_, Peek())));
    }
    return Expect(Lexeme::Name, what);
}

void TokenReader::ExpectEnd() {
    if (Take(Lexeme::Semicolon) && !Sees(Lexeme::End)) {
        fail_(SyntaxError, Peek().span, Words::tr("A query text is one statement; nothing may follow the semicolon."));
    }
    if (!Sees(Lexeme::End)) FailExpected(QT_TRANSLATE_NOOP("store", "the end of the text"));
}

void TokenReader::FailExpected(const char* what) const {
    constexpr qsizetype longest = 40;
    if (Sees(Lexeme::End))
        fail_(SyntaxError, Peek().span, Words::tr("Expected %1, found the end of the text.").arg(Words::tr(what)));
    QString found = Written(text_, Peek()).toString().simplified();
    if (found.size() > longest) found = found.first(longest) + u"..."_s;
    fail_(SyntaxError, Peek().span, Words::tr("Expected %1, found %2.").arg(Words::tr(what), found));
}

Span TokenReader::SpanFrom(int offset) const {
    const Span last = at_ == 0 ? Span{} : tokens_[at_ - 1].span;
    return {offset, last.offset + last.length - offset};
}

}  // namespace store::dialect
