#pragma once

#include <vector>

#include "platform/dialect/ParsedStatement.h"
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

    // Expressions, by falling strength of their operators
    ParsedPtr expression();
    ParsedPtr conjunction();
    ParsedPtr negated();
    ParsedPtr comparison();
    ParsedPtr sum();
    ParsedPtr product();
    ParsedPtr signedValue();
    ParsedPtr primary();
    ParsedPtr name();
    ParsedPtr call();
    ParsedPtr predicate(ParsedPtr operand);
    ParsedPtr isNull(ParsedPtr operand);
    ParsedPtr like(ParsedPtr operand, bool negatedForm);
    std::vector<ParsedPtr> expressions();
    ParsedPtr make(ParsedNode node, qsizetype position, int depth);

    // Queries
    ParsedQuery query();
    std::optional<std::int64_t> top();
    ParsedItem item();
    ParsedSource source();

    // Changes
    ParsedStatement insert();
    ParsedStatement update();
    ParsedStatement deletion();
    ParsedName columnName();

    // Definitions
    ParsedStatement create();
    ParsedStatement alter();
    Plan createTable();
    Plan createIndex();
    ColumnDef columnDefinition();
    QStringList columnNames();

    TokenStream in_;
    int nesting_ = 0;
};

}  // namespace akarix
