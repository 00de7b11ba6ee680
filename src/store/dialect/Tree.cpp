#include "store/dialect/Tree.h"

using namespace Qt::StringLiterals;

namespace store::dialect {

Level LevelOf(Op op) {
    switch (op) {
        case Op::Or:
            return Level::Or;
        case Op::And:
            return Level::And;
        case Op::Join:
            return Level::Join;
        case Op::Add:
        case Op::Subtract:
            return Level::Add;
        case Op::Multiply:
        case Op::Divide:
            return Level::Multiply;
        default:
            return Level::Compare;
    }
}

QLatin1StringView SignOf(Op op) {
    switch (op) {
        case Op::Or:
            return "OR"_L1;
        case Op::And:
            return "AND"_L1;
        case Op::Equal:
            return "="_L1;
        case Op::NotEqual:
            return "<>"_L1;
        case Op::Less:
            return "<"_L1;
        case Op::LessEqual:
            return "<="_L1;
        case Op::Greater:
            return ">"_L1;
        case Op::GreaterEqual:
            return ">="_L1;
        case Op::Join:
            return "&"_L1;
        case Op::Add:
            return "+"_L1;
        case Op::Subtract:
            return "-"_L1;
        case Op::Multiply:
            return "*"_L1;
        case Op::Divide:
            return "/"_L1;
    }
    Q_UNREACHABLE();
}

}  // namespace store::dialect
