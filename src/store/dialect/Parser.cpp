#include "store/dialect/Parser.h"

#include "store/Words.h"
#include "store/dialect/ExprParser.h"
#include "store/dialect/Limits.h"
#include "store/dialect/Nesting.h"

namespace store::dialect {

namespace {

constexpr const char* AnAlias = QT_TRANSLATE_NOOP("store", "an alias");

class Parser {
public:
    Parser(const QString& text, const std::vector<Token>& tokens) : reader_(text, tokens), exprs_(reader_) {}

    Statement Whole() {
        Statement statement = One();
        reader_.ExpectEnd();
        return statement;
    }

    ExprPtr Criteria() {
        ExprPtr condition = exprs_.Expression();
        if (!reader_.Sees(Lexeme::End)) reader_.FailExpected(QT_TRANSLATE_NOOP("store", "the end of the text"));
        return condition;
    }

private:
    Statement One() {
        if (reader_.Take(Lexeme::Select)) return SelectStatement();
        if (reader_.Take(Lexeme::Update)) return UpdateStatement();
        if (reader_.Take(Lexeme::Delete)) return DeleteStatement();
        reader_.FailExpected(QT_TRANSLATE_NOOP("store", "SELECT, UPDATE or DELETE"));
    }

    Select SelectStatement() {
        Select select;
        do {
            select.items.push_back(Item());
        } while (reader_.Take(Lexeme::Comma));
        reader_.Expect(Lexeme::From, "FROM");
        select.from = Tables();
        select.where = Where();
        if (reader_.Take(Lexeme::Group)) {
            reader_.Expect(Lexeme::By, "BY");
            select.group = exprs_.List();
        }
        if (reader_.Take(Lexeme::Having)) select.having = exprs_.Expression();
        if (reader_.Take(Lexeme::Order)) select.order = Sortings();
        return select;
    }

    SelectItem Item() {
        const int offset = reader_.Peek().span.offset;
        SelectItem item;
        if (!reader_.Take(Lexeme::Star) && !TableStar(item)) {
            item.expr = exprs_.Expression();
            if (reader_.Take(Lexeme::As)) item.alias = Name(AnAlias);
        }
        item.span = reader_.SpanFrom(offset);
        return item;
    }

    bool TableStar(SelectItem& item) {
        if (!reader_.SeesAhead({Lexeme::Name, Lexeme::Dot, Lexeme::Star})) return false;
        const Token& table = reader_.Advance();
        reader_.Advance();
        reader_.Advance();
        item.starTable = NameOf(reader_.Text(), table).toString();
        item.starTableSpan = table.span;
        return true;
    }

    Source Tables() {
        const Nesting nesting(nesting_, reader_);
        Source source = TableOrBrackets();
        for (;;) {
            const bool left = reader_.Take(Lexeme::Left);
            if (left) reader_.Take(Lexeme::Outer);
            if (!left && !reader_.Take(Lexeme::Inner)) return source;
            reader_.Expect(Lexeme::Join, "JOIN");
            auto joined = std::make_unique<JoinedTables>();
            joined->left = left;
            joined->first = std::move(source);
            joined->second = TableOrBrackets();
            reader_.Expect(Lexeme::On, "ON");
            joined->on = exprs_.Expression();
            source = std::move(joined);
        }
    }

    Source TableOrBrackets() {
        if (!reader_.Take(Lexeme::Open)) return Table();
        Source source = Tables();
        reader_.Expect(Lexeme::Close, ")");
        return source;
    }

    TableRef Table() {
        const Token& name = reader_.ExpectName(QT_TRANSLATE_NOOP("store", "a table name"));
        if (++tables_ > MaxTables) reader_.Fail()(SyntaxError, name.span, Words::tr("A query joins too many tables."));
        TableRef table{name.span, NameOf(reader_.Text(), name).toString(), {}};
        if (reader_.Take(Lexeme::As)) table.alias = Name(AnAlias);
        return table;
    }

    QString Name(const char* what) { return NameOf(reader_.Text(), reader_.ExpectName(what)).toString(); }

    ExprPtr Where() { return reader_.Take(Lexeme::Where) ? exprs_.Expression() : nullptr; }

    std::vector<Sorting> Sortings() {
        reader_.Expect(Lexeme::By, "BY");
        std::vector<Sorting> sortings;
        do {
            Sorting sorting{exprs_.Expression()};
            sorting.descending = reader_.Take(Lexeme::Desc);
            if (!sorting.descending) reader_.Take(Lexeme::Asc);
            sortings.push_back(std::move(sorting));
        } while (reader_.Take(Lexeme::Comma));
        return sortings;
    }

    Update UpdateStatement() {
        Update update;
        update.table = Table();
        reader_.Expect(Lexeme::Set, "SET");
        do {
            ExprPtr target = exprs_.FieldName();
            reader_.Expect(Lexeme::Equal, "=");
            update.set.push_back({std::move(target), exprs_.Expression()});
        } while (reader_.Take(Lexeme::Comma));
        update.where = Where();
        return update;
    }

    Delete DeleteStatement() {
        reader_.Take(Lexeme::Star);
        reader_.Expect(Lexeme::From, "FROM");
        Delete statement;
        statement.table = Table();
        statement.where = Where();
        return statement;
    }

    TokenReader reader_;
    ExprParser exprs_;
    int nesting_ = 0;
    int tables_ = 0;
};

}  // namespace

Statement Parse(const QString& text, const std::vector<Token>& tokens) {
    return Parser(text, tokens).Whole();
}

ExprPtr ParseCriteria(const QString& text, const std::vector<Token>& tokens) {
    return Parser(text, tokens).Criteria();
}

}  // namespace store::dialect
