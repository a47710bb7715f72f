#include "platform/jet/Translator.h"

#include "platform/jet/ChangeBinder.h"
#include "platform/jet/DefinitionBinder.h"
#include "platform/jet/Lexer.h"
#include "platform/jet/LiteralLifting.h"
#include "platform/jet/Parser.h"
#include "platform/jet/PlanCache.h"
#include "platform/jet/QueryBinder.h"

namespace akarix {
namespace {

/// A recordset of it can be changed: rows of one table, as they stand there.
bool isUpdatable(const BoundQuery& query) {
    if (query.members.size() != 1) return false;
    const BoundSelect& select = query.members.front();
    return select.rows.tables.size() == 1 && !select.rows.tables.front()->derived && !select.grouped &&
           !select.distinct;
}

/// Binds and writes one parsed statement.
struct Planner {
    const Catalogue& catalogue;

    CachedPlan operator()(const ParsedQuery& parsed) const {
        const auto bound = QueryBinder(catalogue).bind(parsed);
        Plan plan;
        for (const BoundItem& item : bound->members.front().items)
            plan.columns.push_back(item.column);
        const bool updatable = isUpdatable(*bound);
        if (updatable) plan.updatableTable = bound->members.front().rows.tables.front()->definition->name;
        Writer writer;
        writer.query(*bound, updatable);
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
        bindDefinition(plan, catalogue);
        return {std::make_shared<Plan>(std::move(plan)), {}};
    }

 private:
    static CachedPlan change(const Writer& writer) {
        Plan plan;
        plan.kind = Plan::Kind::Change;
        return finished(std::move(plan), writer);
    }
    static CachedPlan finished(Plan plan, const Writer& writer) {
        plan.text = writer.text();
        plan.parameters = static_cast<int>(writer.parameters().size());
        return {std::make_shared<Plan>(std::move(plan)), writer.parameters()};
    }
};

BoundStatement withArguments(const CachedPlan& plan, const std::vector<Literal>& literals) {
    BoundStatement bound{plan.plan, {}};
    bound.arguments.reserve(plan.parameters.size());
    for (const Slot& slot : plan.parameters) {
        bound.arguments.push_back(
            literalValue(literals[static_cast<std::size_t>(slot.lifted)], slot.negated, slot.use));
    }
    return bound;
}

}  // namespace

struct Translator::Impl {
    const Catalogue& catalogue;
    PlanCache cache;
    std::int64_t translated = 0;
    std::int64_t fromCache = 0;
};

Translator::Translator(const Catalogue& catalogue) : impl_(new Impl{catalogue, {}, 0, 0}) {}

Translator::~Translator() = default;

BoundStatement Translator::translate(const QString& sql) {
    ++impl_->translated;
    std::vector<Token> tokens = tokenize(sql);
    const LiftedStatement lifted = liftLiterals(tokens);
    if (!lifted.key.isEmpty()) {
        if (const CachedPlan* kept = impl_->cache.find(lifted.key)) {
            ++impl_->fromCache;
            return withArguments(*kept, lifted.literals);
        }
    }
    CachedPlan plan = std::visit(Planner{impl_->catalogue}, Parser(sql, tokens).statement());
    if (lifted.key.isEmpty()) return withArguments(plan, lifted.literals);
    return withArguments(impl_->cache.keep(lifted.key, std::move(plan)), lifted.literals);
}

void Translator::clear() {
    impl_->cache.clear();
}

std::int64_t Translator::translated() const {
    return impl_->translated;
}

std::int64_t Translator::fromCache() const {
    return impl_->fromCache;
}

}  // namespace akarix
