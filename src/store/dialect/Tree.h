#pragma once

#include <QString>
#include <memory>
#include <variant>
#include <vector>

#include "store/Schema.h"
#include "store/StoreError.h"

// A query text as it was written: names not yet looked up, nothing typed but the literals.
namespace store::dialect {

struct Expr;
using ExprPtr = std::unique_ptr<Expr>;

// Binding from loose to tight: OR, AND, NOT, comparisons, &, + -, * /, the unary minus.
enum class Op {
    Or,
    And,
    Equal,
    NotEqual,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    Join,  // &
    Add,
    Subtract,
    Multiply,
    Divide,
};
enum class Level { Or, And, Not, Compare, Join, Add, Multiply, Minus };
Level LevelOf(Op op);
QLatin1StringView SignOf(Op op);

struct NameExpr {
    QString table;  // empty when unqualified
    Span tableSpan;
    QString name;
};
struct LiteralExpr {
    Type type;
    int index;  // by appearance in the text, from 0
};
enum class ConstantExpr { Null, False, True };
struct NegateExpr {
    ExprPtr operand;
};
struct NotExpr {
    ExprPtr operand;
};
struct BinaryExpr {
    Op op;
    ExprPtr left, right;
};
struct LikeExpr {
    bool negated;
    ExprPtr text, pattern;
};
struct BetweenExpr {
    bool negated;
    ExprPtr value, low, high;
};
struct InExpr {
    bool negated;
    ExprPtr value;
    std::vector<ExprPtr> list;
};
struct IsNullExpr {
    bool negated;
    ExprPtr value;
};
struct CallExpr {
    QString function;
    Span functionSpan;
    bool star;  // Count(*)
    std::vector<ExprPtr> arguments;
};

struct Expr {
    using Node = std::variant<NameExpr, LiteralExpr, ConstantExpr, NegateExpr, NotExpr, BinaryExpr, LikeExpr,
                              BetweenExpr, InExpr, IsNullExpr, CallExpr>;
    Node node;
    Span span;
    int depth = 1;
};

struct TableRef {
    Span span;
    QString name;
    QString alias;  // empty when there is none
};
struct JoinedTables;
using Source = std::variant<TableRef, std::unique_ptr<JoinedTables>>;
struct JoinedTables {
    bool left;  // LEFT JOIN, else INNER JOIN
    Source first, second;
    ExprPtr on;
};

struct SelectItem {
    Span span;
    ExprPtr expr;  // null for * and table.*
    QString starTable;
    Span starTableSpan;
    QString alias;
};
struct Sorting {
    ExprPtr expr;
    bool descending = false;
};
struct Select {
    std::vector<SelectItem> items;
    Source from;
    ExprPtr where;
    std::vector<ExprPtr> group;
    ExprPtr having;
    std::vector<Sorting> order;
};
struct Assignment {
    ExprPtr target;  // a NameExpr
    ExprPtr value;
};
struct Update {
    TableRef table;
    std::vector<Assignment> set;
    ExprPtr where;
};
struct Delete {
    TableRef table;
    ExprPtr where;
};
using Statement = std::variant<Select, Update, Delete>;

}  // namespace store::dialect
