#include "platform/jet/Criteria.h"

#include "platform/jet/DialectError.h"
#include "platform/jet/ExpressionBinder.h"
#include "platform/jet/Lexer.h"
#include "platform/jet/Parser.h"
#include "platform/jet/TextFold.h"

namespace akarix {
namespace {

double real(const StoreValue& value) {
    const auto* whole = std::get_if<std::int64_t>(&value);
    return whole ? static_cast<double>(*whole) : std::get<double>(value);
}

}  // namespace

Criteria::Criteria(const QString& text, const std::vector<ResultColumn>& columns) {
    TableDef definition;  // the recordset's columns as a table of their own
    for (const ResultColumn& column : columns)
        definition.columns.push_back({column.name, column.type, column.size});
    const BoundTable table{0, &definition};
    Scope scope;
    scope.add(&table);
    const std::vector<Token> tokens = tokenize(text);
    const BoundPtr bound = ExpressionBinder(scope).bind(*Parser(text, tokens).condition());
    const auto* comparison = std::get_if<BoundComparison>(&bound->node);
    if (comparison && comparison->op == CompareOp::Equal) {
        const auto* column = std::get_if<BoundColumn>(&comparison->left->node);
        const auto* literal = std::get_if<BoundLiteral>(&comparison->right->node);
        if (column && literal) {
            column_ = static_cast<std::size_t>(column->column);
            wanted_ = literalValue(literal->literal, literal->negated, literal->use);
            return;
        }
    }
    throw syntaxError(text, QStringLiteral("列と値の比較ではありません。"), 0);
}

bool Criteria::matches(const std::vector<StoreValue>& row) const {
    const StoreValue& value = row[column_];
    if (std::holds_alternative<std::monostate>(value)) return false;
    if (const auto* text = std::get_if<QString>(&value))
        return compareTexts(*text, std::get<QString>(wanted_)) == 0;
    return value.index() == wanted_.index() ? value == wanted_ : real(value) == real(wanted_);
}

}  // namespace akarix
