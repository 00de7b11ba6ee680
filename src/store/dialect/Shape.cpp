#include "store/dialect/Shape.h"

namespace store::dialect {

namespace {

char16_t Folded(QChar c) {
    if (c.unicode() < 0x80) return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c.unicode() | 0x20) : c.unicode();
    return c.toCaseFolded().unicode();
}

}  // namespace

void AppendShape(QStringView text, const std::vector<Token>& tokens, std::u16string& key) {
    bool afterAs = false;
    for (const Token& token : tokens) {
        key += static_cast<char16_t>(token.lexeme);
        if (token.lexeme == Lexeme::Name) {
            const QStringView name = NameOf(text, token);
            // The length goes before the name, so that no name can pass for several tokens.
            key += static_cast<char16_t>(name.size() & 0xFFFF);
            key += static_cast<char16_t>(name.size() >> 16);
            for (const QChar c : name) key += afterAs ? c.unicode() : Folded(c);
        }
        afterAs = token.lexeme == Lexeme::As;
    }
}

}  // namespace store::dialect
