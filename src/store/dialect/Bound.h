#pragma once

#include <memory>
#include <vector>

#include "store/Schema.h"
#include "store/StoreError.h"
#include "store/dialect/Tree.h"

// A query text after its names are looked up: every expression has a type and a scale, and every conversion stands in
// the tree as a node of its own. What engines are asked for with it:
//
// - Values are those of Conversion.h; exact numbers are calculated with as whole ones of their scale and go on as
//   doubles beyond 64 bits, where a Sum or an assigned number is error 6. Quotients are doubles; one by zero is null.
// - True is -1 as the value of a field or an operand, false 0; as a condition whatever is not 0 holds. Null spreads
//   through operators and comparisons, but is an empty text to &, and no row meets it as a condition.
// - Texts are equal, and come before one another, by CaseFold.h; LIKE is LikePattern.h, Val is values::Val, a number of
//   its own. Aggregates pass over nulls; of nothing but nulls Sum, Max and Min are null.
namespace store::dialect {

// What a literal is to be bound as.
enum class Target { Text, Pattern, Whole, Scaled, Double, Date, Time, YesNo };

struct BoundExpr;
using BoundPtr = std::shared_ptr<const BoundExpr>;

struct BoundExpr {
    enum class Form {
        Column,
        Literal,
        Constant,
        Alias,  // of an earlier column; its one argument is that column's expression
        Negate,
        Not,
        Binary,
        Like,  // text, pattern
        Between,
        In,
        IsNull,
        Val,
        Sum,
        Max,
        Min,
        Count,  // without argument: of rows
        // conversions
        Raise,     // an exact number to a higher scale
        ToDouble,  // an exact number divided by its scale
        ToText,
        StoreExact,   // an exact number to the scale of a field, rounded half to even; overflow is an error
        StoreDouble,  // a double to the scale of a field
        StoreYesNo,
    };

    Form form;
    Type type = Type::Null;
    int scale = 0;
    Span span;
    std::vector<BoundPtr> args = {};

    int table = 0, column = 0;     // Column
    int literal = 0;               // Literal, from 0
    Target target = Target::Text;  // Literal
    ConstantExpr constant = {};    // Constant
    Op op = {};                    // Binary
    bool negated = false;          // Like, Between, In, IsNull

    int depth = 1, nodes = 1;
};

// Makes a node and measures it.
BoundPtr Make(BoundExpr expr);
// What a chain of aliases stands for.
const BoundExpr& Aliased(const BoundExpr& expr);
bool IsAggregate(const BoundExpr& expr);
bool HoldsAggregate(const BoundExpr& expr);  // or is one
// Gives true or false by itself, not as the value of a field.
bool IsCondition(const BoundExpr& expr);
// Whether two expressions are the same but for their places in the text.
bool Same(const BoundExpr& a, const BoundExpr& b);

struct BoundTable {
    const Table* table = nullptr;
    QString name;  // by which the text calls it
};

// A table, or two joined sources.
struct BoundSource {
    int table = 0;
    bool left = false;
    std::shared_ptr<const BoundSource> first, second;  // both null for a table
    BoundPtr on;
};

// One output column of a SELECT.
struct OutputColumn {
    QString name;  // alias, else the field's name as the schema writes it, else Expr1000, Expr1001...
    Type type = Type::Text;
    int scale = 0;   // decimals of an exact number: 4 for money and its like, 8 for a product of two of them
    int field = -1;  // position of the field in the table of an updatable cursor, else -1
};
struct BoundSorting {
    BoundPtr expr;
    bool descending = false;
};
struct BoundAssignment {
    int column = 0;
    BoundPtr value;
};

struct BoundStatement {
    enum class Kind { Select, Update, Delete };
    Kind kind = Kind::Select;
    std::vector<BoundTable> tables;  // those of an action are one
    std::shared_ptr<const BoundSource> from;
    bool aggregate = false;
    std::vector<BoundPtr> columns;
    QList<OutputColumn> output;  // one a column
    std::vector<BoundAssignment> set;
    BoundPtr where;
    std::vector<BoundPtr> group;
    BoundPtr having;
    std::vector<BoundSorting> order;
};

}  // namespace store::dialect
