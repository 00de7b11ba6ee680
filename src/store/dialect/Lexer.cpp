#include "store/dialect/Lexer.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>

#include "store/Words.h"
#include "store/dialect/Complaint.h"
#include "store/dialect/Limits.h"

namespace store::dialect {

namespace {

// No keyword is longer than seven letters, so that each fits one integer.
constexpr quint64 Pack(std::string_view word) {
    quint64 packed = 0;
    for (const char letter : word) packed = packed << 8 | static_cast<unsigned char>(letter);
    return packed;
}

struct Keyword {
    quint64 packed;
    Lexeme lexeme;
};

constexpr std::array Keywords = {
    Keyword{Pack("and"), Lexeme::And},       Keyword{Pack("as"), Lexeme::As},
    Keyword{Pack("asc"), Lexeme::Asc},       Keyword{Pack("between"), Lexeme::Between},
    Keyword{Pack("by"), Lexeme::By},         Keyword{Pack("current"), Lexeme::Current},
    Keyword{Pack("delete"), Lexeme::Delete}, Keyword{Pack("desc"), Lexeme::Desc},
    Keyword{Pack("false"), Lexeme::False},   Keyword{Pack("from"), Lexeme::From},
    Keyword{Pack("group"), Lexeme::Group},   Keyword{Pack("having"), Lexeme::Having},
    Keyword{Pack("in"), Lexeme::In},         Keyword{Pack("inner"), Lexeme::Inner},
    Keyword{Pack("is"), Lexeme::Is},         Keyword{Pack("join"), Lexeme::Join},
    Keyword{Pack("left"), Lexeme::Left},     Keyword{Pack("like"), Lexeme::Like},
    Keyword{Pack("not"), Lexeme::Not},       Keyword{Pack("null"), Lexeme::Null},
    Keyword{Pack("on"), Lexeme::On},         Keyword{Pack("or"), Lexeme::Or},
    Keyword{Pack("order"), Lexeme::Order},   Keyword{Pack("outer"), Lexeme::Outer},
    Keyword{Pack("select"), Lexeme::Select}, Keyword{Pack("set"), Lexeme::Set},
    Keyword{Pack("true"), Lexeme::True},     Keyword{Pack("update"), Lexeme::Update},
    Keyword{Pack("where"), Lexeme::Where},
};

bool StartsName(QChar c) {
    return c.isLetter() || c == u'_';
}
bool ContinuesName(QChar c) {
    return c.isLetterOrNumber() || c.isMark() || c == u'_';
}
bool IsDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

class Scanner {
public:
    Scanner(const QString& text, std::vector<Token>& tokens) : text_(text), tokens_(tokens), fail_(text) {}

    void Run() {
        while (SkipBlanks()) {
            if (tokens_.size() >= MaxTokens) fail_(SyntaxError, {at_, 1}, Words::tr("The query text is too long."));
            One();
        }
        Put(Lexeme::End, at_);
    }

private:
    QChar Char(int offset) const { return offset < text_.size() ? text_[offset] : QChar(); }

    bool SkipBlanks() {
        while (at_ < text_.size() && text_[at_].isSpace()) ++at_;
        return at_ < text_.size();
    }

    void Put(Lexeme lexeme, int end, bool doubled = false) {
        tokens_.push_back({lexeme, doubled, {at_, end - at_}});
        at_ = end;
    }

    void One() {
        const QChar c = text_[at_];
        if (StartsName(c)) return Word();
        if (IsDigit(c) || (c == u'.' && IsDigit(Char(at_ + 1)))) return Number();
        if (c == u'\'' || c == u'"') return Text(c);
        if (c == u'[') return BracketedName();
        if (c == u'#') return Date();
        Sign(c);
    }

    void Word() {
        int end = at_ + 1;
        while (end < text_.size() && ContinuesName(text_[end])) ++end;
        Put(KeywordOf(text_.sliced(at_, end - at_)), end);
    }

    void Number() {
        int end = at_;
        while (IsDigit(Char(end))) ++end;
        Lexeme lexeme = Lexeme::Whole;
        if (Char(end) == u'.') {
            const int point = end++;
            while (IsDigit(Char(end))) ++end;
            lexeme = end - point - 1 > 4 ? Lexeme::LongDecimal : Lexeme::Decimal;
        }
        if (ContinuesName(Char(end))) {
            while (ContinuesName(Char(end))) ++end;
            fail_(SyntaxError, {at_, end - at_},
                  Words::tr("\"%1\" is not a number.").arg(text_.sliced(at_, end - at_)));
        }
        Put(lexeme, end);
    }

    void Text(QChar quote) {
        bool doubled = false;
        int end = at_ + 1;
        for (;; end += 2, doubled = true) {
            const qsizetype found = text_.indexOf(quote, end);
            if (found < 0) Unclosed(Words::tr("A text is not closed by a quote."));
            end = static_cast<int>(found);
            if (Char(end + 1) != quote) break;
        }
        Put(Lexeme::Text, end + 1, doubled);
    }

    void BracketedName() {
        const qsizetype close = text_.indexOf(u']', at_);
        if (close < 0) Unclosed(Words::tr("A name is not closed by a bracket."));
        const int end = static_cast<int>(close) + 1;
        if (text_.sliced(at_ + 1, end - at_ - 2).trimmed().isEmpty()) {
            fail_(SyntaxError, {at_, end - at_}, Words::tr("A name is missing between the brackets."));
        }
        Put(Lexeme::Name, end);
    }

    void Date() {
        const qsizetype close = text_.indexOf(u'#', at_ + 1);
        if (close < 0) Unclosed(Words::tr("A date is not closed by #."));
        Put(Lexeme::Date, static_cast<int>(close) + 1);
    }

    [[noreturn]] void Unclosed(const QString& message) const {
        fail_(SyntaxError, {at_, static_cast<int>(text_.size()) - at_}, message);
    }

    void Sign(QChar c) {
        const QChar next = Char(at_ + 1);
        switch (c.unicode()) {
            case u',':
                return Put(Lexeme::Comma, at_ + 1);
            case u'.':
                return Put(Lexeme::Dot, at_ + 1);
            case u';':
                return Put(Lexeme::Semicolon, at_ + 1);
            case u'(':
                return Put(Lexeme::Open, at_ + 1);
            case u')':
                return Put(Lexeme::Close, at_ + 1);
            case u'*':
                return Put(Lexeme::Star, at_ + 1);
            case u'+':
                return Put(Lexeme::Plus, at_ + 1);
            case u'-':
                return Put(Lexeme::Minus, at_ + 1);
            case u'/':
                return Put(Lexeme::Slash, at_ + 1);
            case u'&':
                return Put(Lexeme::Ampersand, at_ + 1);
            case u'=':
                return Put(Lexeme::Equal, at_ + 1);
            case u'<':
                if (next == u'>') return Put(Lexeme::NotEqual, at_ + 2);
                return next == u'=' ? Put(Lexeme::LessEqual, at_ + 2) : Put(Lexeme::Less, at_ + 1);
            case u'>':
                return next == u'=' ? Put(Lexeme::GreaterEqual, at_ + 2) : Put(Lexeme::Greater, at_ + 1);
            default:
                break;
        }
        const int length = c.isHighSurrogate() && next.isLowSurrogate() ? 2 : 1;
        fail_(SyntaxError, {at_, length}, Words::tr("A sign that the query language does not know."));
    }

    QStringView text_;
    std::vector<Token>& tokens_;
    Complaint fail_;
    int at_ = 0;
};

}  // namespace

void Lex(const QString& text, std::vector<Token>& tokens) {
    tokens.clear();
    if (text.size() >= std::numeric_limits<int>::max()) {
        Complaint{text}(SyntaxError, {0, 1}, Words::tr("The query text is too long."));
    }
    Scanner(text, tokens).Run();
}

Lexeme KeywordOf(QStringView word) {
    if (word.size() > 7) return Lexeme::Name;
    quint64 packed = 0;
    for (const QChar c : word) {
        const quint64 folded = c.unicode() | 0x20u;
        if (folded < u'a' || folded > u'z') return Lexeme::Name;
        packed = packed << 8 | folded;
    }
    const auto found = std::find_if(Keywords.begin(), Keywords.end(),
                                    [packed](const Keyword& keyword) { return keyword.packed == packed; });
    return found == Keywords.end() ? Lexeme::Name : found->lexeme;
}

QStringView NameOf(QStringView text, const Token& token) {
    const QStringView written = Written(text, token);
    return written.startsWith(u'[') ? written.sliced(1, written.size() - 2) : written;
}

QString ContentOf(QStringView text, const Token& token) {
    const QStringView written = Written(text, token);
    if (token.lexeme != Lexeme::Text && token.lexeme != Lexeme::Date) return written.toString();
    QString content = written.sliced(1, written.size() - 2).toString();
    if (token.doubled) content.replace(QString(2, written.front()), QString(written.front()));
    return content;
}

}  // namespace store::dialect
