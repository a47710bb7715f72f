#include "platform/jet/Criteria.h"

#include "platform/jet/Evaluator.h"
#include "platform/jet/ExpressionBinder.h"
#include "platform/jet/Lexer.h"
#include "platform/jet/Parser.h"

namespace akarix {

struct Criteria::Impl {
    TableDef definition;  // the recordset's columns as a table of their own
    BoundTable table;
    BoundPtr condition;
};

Criteria::Criteria(const QString& text, const std::vector<ResultColumn>& columns) : impl_(new Impl) {
    for (const ResultColumn& column : columns) {
        impl_->definition.columns.push_back({column.name, column.type, column.size});
    }
    impl_->table.definition = &impl_->definition;
    const std::vector<Token> tokens = tokenize(text);
    const ParsedPtr parsed = Parser(text, tokens).condition();
    Scope scope;
    scope.add(&impl_->table);
    impl_->condition = ExpressionBinder(scope, nullptr).bind(*parsed);
}

Criteria::~Criteria() = default;

bool Criteria::matches(const std::vector<StoreValue>& row) const {
    const StoreValue result = evaluate(*impl_->condition, row);
    if (const auto* whole = std::get_if<std::int64_t>(&result)) return *whole != 0;
    const auto* real = std::get_if<double>(&result);
    return real && *real != 0;
}

}  // namespace akarix
