#pragma once

#include "platform/dialect/Parsed.h"
#include "platform/dialect/TokenStream.h"

namespace akarix {

/// Reads one statement. Raises 3075 for what the dialect does not know and 3360 past the limits of depth.
class Parser {
 public:
    /// \param tokens of \a sql; both must outlive the parser.
    Parser(QStringView sql, const std::vector<Token>& tokens) : in_(sql, tokens) {}

    ParsedStatement statement();
    /// A condition alone, as FindFirst takes it.
    ParsedPtr condition();

 private:
    void finish();

    // Expressions
    enum class Level { Or, And, Comparison, Sum, Product };
    ParsedPtr expression();
    ParsedPtr chain(Level level);
    ParsedPtr operand(Level level);
    std::optional<Operator> acceptOperator(Level level);
    ParsedPtr negated();
    ParsedPtr comparison();
    ParsedPtr signedValue();
    ParsedPtr primary();
    ParsedPtr call();
    ParsedName name();
    std::vector<ParsedPtr> expressions();
    ParsedPtr make(decltype(ParsedExpression::node) node, qsizetype position,
                   std::vector<ParsedPtr> operands = {});
    ParsedPtr make(Operator op, qsizetype position, ParsedPtr left, ParsedPtr right = nullptr);

    // Queries
    ParsedQuery query();
    std::optional<std::int64_t> top();
    ParsedItem item();
    ParsedSource source();

    // Changes
    ParsedStatement insert();
    ParsedStatement update();
    ParsedStatement deletion();

    // Definitions
    Definition create();
    Definition alter();
    ColumnDef columnDefinition();
    QStringList names();

    TokenStream in_;
    int nesting_ = 0;
};

}  // namespace akarix
