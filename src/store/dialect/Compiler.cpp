#include <algorithm>
#include <string_view>
#include <unordered_map>

#include "store/dialect/Binder.h"
#include "store/dialect/Lexer.h"
#include "store/dialect/Literals.h"
#include "store/dialect/Parser.h"
#include "store/dialect/Plan.h"
#include "store/dialect/Shape.h"

namespace store::dialect {

namespace {

struct ShapeHash {
    using is_transparent = void;
    size_t operator()(std::u16string_view key) const { return std::hash<std::u16string_view>()(key); }
};

int CountLiterals(const std::vector<Token>& tokens) {
    return static_cast<int>(
        std::count_if(tokens.begin(), tokens.end(), [](const Token& token) { return IsLiteral(token.lexeme); }));
}

void NoteTargets(const BoundPtr& expr, QList<Target>& targets) {
    if (!expr) return;
    if (expr->form == BoundExpr::Form::Literal) targets[expr->literal] = expr->target;
    for (const BoundPtr& arg : expr->args) NoteTargets(arg, targets);
}

void NoteTargets(const std::shared_ptr<const BoundSource>& source, QList<Target>& targets) {
    if (!source) return;
    NoteTargets(source->on, targets);
    NoteTargets(source->first, targets);
    NoteTargets(source->second, targets);
}

Plan PlanOf(BoundStatement statement, int literals) {
    Plan plan;
    static_cast<BoundStatement&>(plan) = std::move(statement);
    const bool isOneTable = plan.tables.size() == 1 && !plan.aggregate;
    if (isOneTable) plan.table = plan.tables.front().table;
    plan.targets.resize(literals, Target::Text);
    NoteTargets(plan.from, plan.targets);
    for (const BoundPtr& expr : plan.columns) NoteTargets(expr, plan.targets);
    for (const BoundAssignment& assignment : plan.set) NoteTargets(assignment.value, plan.targets);
    NoteTargets(plan.where, plan.targets);
    for (const BoundPtr& expr : plan.group) NoteTargets(expr, plan.targets);
    NoteTargets(plan.having, plan.targets);
    for (const BoundSorting& sorting : plan.order) NoteTargets(sorting.expr, plan.targets);
    return plan;
}

QList<BoundValue> ValuesOf(const QString& text, const std::vector<Token>& tokens, const Plan& plan) {
    QList<BoundValue> values;
    values.reserve(plan.targets.size());
    for (const Token& token : tokens) {
        if (IsLiteral(token.lexeme)) values.push_back(ValueOf(text, token, plan.targets[values.size()]));
    }
    return values;
}

}  // namespace

// The screens know a few dozen shapes; whoever makes up new ones all the time does not get to fill the memory.
struct Compiler::Cache {
    static constexpr size_t Most = 512;

    const Prepare prepare;
    std::vector<Token> tokens{};
    std::u16string key{};
    std::unordered_map<std::u16string, std::shared_ptr<const Plan>, ShapeHash, std::equal_to<>> plans{};

    template <typename MakePlan>
    Query QueryOf(const QString& text, const MakePlan& makePlan) {
        AppendShape(text, tokens, key);
        auto found = plans.find(std::u16string_view(key));
        if (found == plans.end()) {
            auto plan = std::make_shared<const Plan>(makePlan());
            if (prepare) prepare(*plan, text);
            if (plans.size() >= Most) plans.clear();
            found = plans.emplace(key, std::move(plan)).first;
        }
        return {found->second, ValuesOf(text, tokens, *found->second)};
    }
};

Compiler::Compiler(const Schema& schema, Prepare prepare) : schema_(&schema), cache_(new Cache{std::move(prepare)}) {}
Compiler::~Compiler() = default;
Compiler::Compiler(Compiler&&) noexcept = default;

Query Compiler::Compile(const QString& text) {
    Lex(text, cache_->tokens);
    cache_->key.clear();
    return cache_->QueryOf(text, [&] {
        const Statement statement = Parse(text, cache_->tokens);
        return PlanOf(Bind(statement, *schema_, text), CountLiterals(cache_->tokens));
    });
}

Query Compiler::CompileCriteria(const QString& text, const Table& table) {
    Lex(text, cache_->tokens);
    // No shape of a whole text begins with the end of one.
    cache_->key.assign(1, static_cast<char16_t>(Lexeme::End));
    cache_->key += table.name.toStdU16String();
    return cache_->QueryOf(text, [&] {
        const ExprPtr condition = ParseCriteria(text, cache_->tokens);
        return PlanOf(BindCriteria(condition, table, text), CountLiterals(cache_->tokens));
    });
}

}  // namespace store::dialect
