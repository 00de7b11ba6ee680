#include "store/dialect/Printer.h"

#include <algorithm>

#include "store/dialect/Lexer.h"

using namespace Qt::StringLiterals;

namespace store::dialect {

namespace {

bool IsPlainName(QStringView name) {
    const auto plain = [](QChar c) { return c.isLetterOrNumber() || c == u'_'; };
    return (name.front().isLetter() || name.front() == u'_') && std::all_of(name.begin(), name.end(), plain) &&
           KeywordOf(name) == Lexeme::Name;
}

QString PrintName(const QString& name) {
    return IsPlainName(name) ? name : u'[' + name + u']';
}

QString PrintQualified(const QString& table, const QString& name) {
    return table.isEmpty() ? name : PrintName(table) + u'.' + name;
}

class Printer {
public:
    explicit Printer(Brackets brackets) : brackets_(brackets) {}

    QString At(const ExprPtr& expr, Level least) const {
        const Level level = LevelOf(*expr);
        const bool bracket = brackets_ == Brackets::All ? level != Level::Primary : level < least;
        const QString text = Text(*expr);
        return bracket ? u'(' + text + u')' : text;
    }

    QString Text(const Expr& expr) const {
        return std::visit([this](const auto& node) { return Node(node); }, expr.node);
    }

    QString List(const std::vector<ExprPtr>& list) const {
        QStringList texts;
        for (const ExprPtr& expr : list) texts += At(expr, Level::Or);
        return texts.join(u", ");
    }

    QString Tables(const Source& source) const {
        if (const auto* table = std::get_if<TableRef>(&source)) return Table(*table);
        const auto& joined = *std::get<std::unique_ptr<JoinedTables>>(source);
        const bool nested = !std::holds_alternative<TableRef>(joined.second);
        const QString second = Tables(joined.second);
        return Tables(joined.first) + (joined.left ? u" LEFT JOIN "_s : u" INNER JOIN "_s) +
               (nested ? u'(' + second + u')' : second) + u" ON "_s + At(joined.on, Level::Or);
    }

    QString Whole(const Select& select) const {
        QStringList items;
        for (const SelectItem& item : select.items) items += Item(item);
        QString text = u"SELECT "_s + items.join(u", ") + u" FROM "_s + Tables(select.from) + Where(select.where);
        if (!select.group.empty()) text += u" GROUP BY "_s + List(select.group);
        if (select.having) text += u" HAVING "_s + At(select.having, Level::Or);
        if (select.order.empty()) return text;
        QStringList sortings;
        for (const Sorting& sorting : select.order) {
            sortings += At(sorting.expr, Level::Or) + (sorting.descending ? u" DESC"_s : QString());
        }
        return text + u" ORDER BY "_s + sortings.join(u", ");
    }

    QString Whole(const Update& update) const {
        QStringList set;
        for (const Assignment& assignment : update.set) {
            set += Text(*assignment.target) + u" = "_s + At(assignment.value, Level::Or);
        }
        return u"UPDATE "_s + Table(update.table) + u" SET "_s + set.join(u", ") + Where(update.where);
    }

    QString Whole(const Delete& statement) const {
        return u"DELETE * FROM "_s + Table(statement.table) + Where(statement.where);
    }

private:
    static Level LevelOf(const Expr& expr) {
        if (const auto* binary = std::get_if<BinaryExpr>(&expr.node)) return dialect::LevelOf(binary->op);
        if (std::holds_alternative<NotExpr>(expr.node)) return Level::Not;
        if (std::holds_alternative<NegateExpr>(expr.node)) return Level::Minus;
        const bool primary =
            std::holds_alternative<NameExpr>(expr.node) || std::holds_alternative<LiteralExpr>(expr.node) ||
            std::holds_alternative<ConstantExpr>(expr.node) || std::holds_alternative<CallExpr>(expr.node);
        return primary ? Level::Primary : Level::Compare;
    }

    QString Node(const NameExpr& name) const { return PrintQualified(name.table, PrintName(name.name)); }

    QString Node(const LiteralExpr& literal) const {
        QString text = literal.literal.text;
        switch (literal.literal.kind) {
            case Literal::Kind::Text:
                return u'\'' + text.replace(u'\'', u"''"_s) + u'\'';
            case Literal::Kind::Date:
                return u'#' + text + u'#';
            default:
                return text;
        }
    }

    QString Node(ConstantExpr constant) const {
        if (constant == ConstantExpr::Null) return u"Null"_s;
        return constant == ConstantExpr::True ? u"True"_s : u"False"_s;
    }

    QString Node(const NegateExpr& negate) const { return u'-' + At(negate.operand, Level::Minus); }
    QString Node(const NotExpr& inversion) const { return u"NOT "_s + At(inversion.operand, Level::Not); }

    QString Node(const BinaryExpr& binary) const {
        const Level level = dialect::LevelOf(binary.op);
        const Level above = static_cast<Level>(static_cast<int>(level) + 1);
        return At(binary.left, level) + u' ' + SignOf(binary.op) + u' ' + At(binary.right, above);
    }

    QString Node(const LikeExpr& like) const {
        return At(like.text, Level::Compare) + Negation(like.negated) + u" LIKE "_s + At(like.pattern, Level::Join);
    }

    QString Node(const BetweenExpr& between) const {
        return At(between.value, Level::Compare) + Negation(between.negated) + u" BETWEEN "_s +
               At(between.low, Level::Join) + u" AND "_s + At(between.high, Level::Join);
    }

    QString Node(const InExpr& in) const {
        return At(in.value, Level::Compare) + Negation(in.negated) + u" IN ("_s + List(in.list) + u')';
    }

    QString Node(const IsNullExpr& isNull) const {
        return At(isNull.value, Level::Compare) + (isNull.negated ? u" IS NOT NULL"_s : u" IS NULL"_s);
    }

    QString Node(const CallExpr& call) const {
        return call.function + u'(' + (call.star ? u"*"_s : List(call.arguments)) + u')';
    }

    static QString Negation(bool negated) { return negated ? u" NOT"_s : QString(); }

    QString Item(const SelectItem& item) const {
        if (!item.expr) return PrintQualified(item.starTable, u"*"_s);
        return At(item.expr, Level::Or) + (item.alias.isEmpty() ? QString() : u" AS "_s + PrintName(item.alias));
    }

    static QString Table(const TableRef& table) {
        return PrintName(table.name) + (table.alias.isEmpty() ? QString() : u" AS "_s + PrintName(table.alias));
    }

    QString Where(const ExprPtr& where) const { return where ? u" WHERE "_s + At(where, Level::Or) : QString(); }

    Brackets brackets_;
};

}  // namespace

QString Print(const Statement& statement, Brackets brackets) {
    return std::visit([&](const auto& one) { return Printer(brackets).Whole(one); }, statement);
}

}  // namespace store::dialect
