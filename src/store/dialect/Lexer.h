#pragma once

#include <QString>
#include <vector>

#include "store/StoreError.h"

namespace store::dialect {

enum class Lexeme : quint8 {
    End,
    Name,
    // literals
    Text,
    Whole,
    Decimal,
    LongDecimal,  // of more than four decimals: no longer an exact number
    Date,
    // signs
    Comma,
    Dot,
    Semicolon,
    Open,
    Close,
    Star,
    Plus,
    Minus,
    Slash,
    Ampersand,
    Equal,
    NotEqual,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    // keywords
    And,
    As,
    Asc,
    Between,
    By,
    Current,  // reserved, though no clause uses it
    Delete,
    Desc,
    False,
    From,
    Group,
    Having,
    In,
    Inner,
    Is,
    Join,
    Left,
    Like,
    Not,
    Null,
    On,
    Or,
    Order,
    Outer,
    Select,
    Set,
    True,
    Update,
    Where,
};

constexpr bool IsLiteral(Lexeme lexeme) {
    return lexeme >= Lexeme::Text && lexeme <= Lexeme::Date;
}
constexpr bool IsKeyword(Lexeme lexeme) {
    return lexeme >= Lexeme::And;
}

struct Token {
    Lexeme lexeme = Lexeme::End;
    bool doubled = false;  // a text that holds its own quote, written twice
    Span span;
};

// Reads a query text into tokens, Lexeme::End last. `tokens` is refilled, so that its memory serves the next text.
void Lex(const QString& text, std::vector<Token>& tokens);

// The keyword that a word is in any case, else Lexeme::Name.
Lexeme KeywordOf(QStringView word);

inline QStringView Written(QStringView text, const Token& token) {
    return text.sliced(token.span.offset, token.span.length);
}
// A name without its square brackets.
QStringView NameOf(QStringView text, const Token& token);
// A text without its quotes, '' undoubled; a date without its # signs; a number as written.
QString ContentOf(QStringView text, const Token& token);

}  // namespace store::dialect
