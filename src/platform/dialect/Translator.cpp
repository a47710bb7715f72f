#include "platform/dialect/Translator.h"

#include <algorithm>

#include "platform/dialect/ChangeBinder.h"
#include "platform/dialect/DefinitionBinder.h"
#include "platform/dialect/Lexer.h"
#include "platform/dialect/LiteralLifting.h"
#include "platform/dialect/Parser.h"
#include "platform/dialect/PlanCache.h"
#include "platform/dialect/QueryBinder.h"
#include "platform/dialect/TextShape.h"

namespace akarix {
namespace {

/// A recordset of it can be changed: rows of one table, as they stand there.
bool IsUpdatable(const BoundQuery& query) {
    return query.rows.tables.size() == 1 && !query.grouped;
}

/// Binds and writes one parsed statement.
struct Planner {
    const Catalogue& catalogue;

    CachedPlan operator()(const ParsedQuery& parsed) const {
        const BoundQuery bound = QueryBinder(catalogue).bind(parsed);
        Plan plan;
        for (const BoundItem& item : bound.items)
            plan.columns.push_back(item.column);
        const bool updatable = IsUpdatable(bound);
        if (updatable) plan.updatableTable = bound.rows.tables.front()->definition->name;
        Writer writer;
        writer.query(bound, updatable);
        return finished(std::move(plan), writer);
    }
    CachedPlan operator()(const ParsedInsert& parsed) const {
        Writer writer;
        writer.insert(ChangeBinder(catalogue).bind(parsed));
        return change(writer);
    }
    CachedPlan operator()(const ParsedUpdate& parsed) const {
        Writer writer;
        writer.update(ChangeBinder(catalogue).bind(parsed));
        return change(writer);
    }
    CachedPlan operator()(const ParsedDelete& parsed) const {
        Writer writer;
        writer.remove(ChangeBinder(catalogue).bind(parsed));
        return change(writer);
    }
    CachedPlan operator()(const ParsedDefinition& parsed) const {
        Plan plan = parsed.plan;
        BindDefinition(plan, catalogue);
        return {std::make_shared<Plan>(std::move(plan)), {}};
    }

 private:
    static CachedPlan change(const Writer& writer) {
        Plan plan;
        plan.kind = Plan::Kind::Change;
        plan.computes = writer.computes();
        return finished(std::move(plan), writer);
    }
    static CachedPlan finished(Plan plan, const Writer& writer) {
        plan.text = writer.text();
        plan.parameters = static_cast<int>(writer.parameters().size());
        return {std::make_shared<Plan>(std::move(plan)), writer.parameters()};
    }
};

BoundStatement WithArguments(const CachedPlan& plan, const std::vector<Literal>& literals) {
    BoundStatement bound{plan.plan, {}};
    bound.arguments.reserve(plan.parameters.size());
    for (const Slot& slot : plan.parameters) {
        bound.arguments.push_back(
            LiteralFor(slot.target, literals[static_cast<std::size_t>(slot.lifted)], slot.negated, slot.use));
    }
    return bound;
}

/// Whether the literals that are part of the plan are those of this text.
bool Fits(const CachedPlan& plan, const std::vector<Literal>& literals) {
    return std::all_of(
        plan.staying.begin(), plan.staying.end(),
        [&](const auto& staying) { return literals[staying.first] == staying.second; });
}

/// The plan of a statement as it is kept by the shape of its text, which counts all literals.
CachedPlan ByShape(CachedPlan plan, const std::vector<Token>& tokens) {
    std::vector<int> places;
    std::size_t literals = 0;
    for (const Token& token : tokens) {
        if (token.type != Token::Type::Literal) continue;
        if (token.lifted < 0)
            plan.staying.emplace_back(literals, token.literal);
        else
            places.push_back(static_cast<int>(literals));
        ++literals;
    }
    for (Slot& slot : plan.parameters)
        slot.lifted = places[static_cast<std::size_t>(slot.lifted)];
    return plan;
}

}  // namespace

struct Translator::Impl {
    const Catalogue& catalogue;
    TextShape shape;
    PlanCache byShape;
    PlanCache byTokens;
    std::int64_t fromCache = 0;
};

Translator::Translator(const Catalogue& catalogue) : impl_(new Impl{catalogue, {}, {}, {}, 0}) {}

Translator::~Translator() = default;

BoundStatement Translator::translate(const QString& sql) {
    TextShape& shape = impl_->shape;
    if (const PlanCache::Entry* expected = impl_->byShape.expected();
        expected && shape.readAs(sql, expected->key) && Fits(expected->plan, shape.literals())) {
        ++impl_->fromCache;
        impl_->byShape.takeExpected();
        return WithArguments(expected->plan, shape.literals());
    }
    const bool shaped = shape.read(sql);
    const CachedPlan* kept = shaped ? impl_->byShape.find(shape.key()) : nullptr;
    if (kept && Fits(*kept, shape.literals())) {
        ++impl_->fromCache;
        return WithArguments(*kept, shape.literals());
    }
    std::vector<Token> tokens = Tokenize(sql);
    const LiftedStatement lifted = LiftLiterals(tokens);
    const bool keeps = !lifted.key.isEmpty();
    kept = keeps ? impl_->byTokens.find(lifted.key) : nullptr;
    if (kept) {
        ++impl_->fromCache;
    } else {
        CachedPlan plan = std::visit(Planner{impl_->catalogue}, Parser(sql, tokens).statement());
        if (!keeps) return WithArguments(plan, lifted.literals);
        kept = &impl_->byTokens.keep(lifted.key, std::move(plan));
    }
    if (shaped) impl_->byShape.keep(shape.key(), ByShape(*kept, tokens));
    return WithArguments(*kept, lifted.literals);
}

void Translator::clear() {
    impl_->byShape.clear();
    impl_->byTokens.clear();
}

std::int64_t Translator::fromCache() const {
    return impl_->fromCache;
}

}  // namespace akarix
