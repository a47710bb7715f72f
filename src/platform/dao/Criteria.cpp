#include "platform/dao/Criteria.h"

#include "platform/dialect/DialectError.h"
#include "platform/dialect/ExpressionBinder.h"
#include "platform/dialect/Lexer.h"
#include "platform/dialect/Parser.h"
#include "platform/dialect/TextFold.h"
#include "platform/runtime/Literals.h"

namespace akarix {
Criteria::Criteria(const QString& text, const std::vector<ResultColumn>& columns) {
    TableDef definition;  // the recordset's columns as a table of their own
    for (const ResultColumn& column : columns)
        definition.columns.push_back({column.name, column.type, column.size});
    const BoundTable table{0, std::make_shared<const TableDef>(std::move(definition))};
    Scope scope;
    scope.add(&table);
    const std::vector<Token> tokens = Tokenize(text);
    const BoundPtr bound = ExpressionBinder(scope).bind(*Parser(text, tokens).condition());
    const auto* op = bound->as<Operator>();
    if (op && *op == Operator::Equal) {
        const auto* column = bound->operands[0]->as<BoundColumn>();
        const auto* literal = bound->operands[1]->as<BoundLiteral>();
        if (column && literal) {
            column_ = static_cast<std::size_t>(column->column);
            wanted_ = ValueAt(literal->place, literal->literal);
            return;
        }
    }
    throw SyntaxError(text, u"列と値の比較ではありません。"_s, 0);
}

bool Criteria::matches(const std::vector<StoreValue>& row) const {
    const StoreValue& value = row[column_];
    if (std::holds_alternative<std::monostate>(value)) return false;
    if (const auto* text = std::get_if<QString>(&value))
        return CompareTexts(*text, std::get<QString>(wanted_)) == 0;
    return value.index() == wanted_.index() ? value == wanted_
                                            : RealOf(Kind::Double, value) == RealOf(Kind::Double, wanted_);
}

}  // namespace akarix
