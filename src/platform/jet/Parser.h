#pragma once

#include <vector>

#include "platform/jet/ParsedStatement.h"
#include "platform/jet/TokenStream.h"

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
    ParsedPtr joined();
    ParsedPtr sum();
    ParsedPtr modulo();
    ParsedPtr wholeQuotient();
    ParsedPtr product();
    ParsedPtr signedValue();
    ParsedPtr power();
    ParsedPtr primary();
    ParsedPtr name();
    ParsedPtr call();
    ParsedPtr parenthesised();
    ParsedPtr predicate(ParsedPtr operand);
    ParsedPtr isNull(ParsedPtr operand);
    ParsedPtr like(ParsedPtr operand, bool negatedForm);
    ParsedPtr between(ParsedPtr operand, bool negatedForm);
    ParsedPtr in(ParsedPtr operand, bool negatedForm);
    std::vector<ParsedPtr> expressions();
    ParsedPtr make(ParsedNode node, qsizetype position, int depth);

    // Queries
    std::unique_ptr<ParsedQuery> query();
    ParsedSelect select();
    void quantifiers(ParsedSelect& select);
    std::optional<ParsedTop> top();
    ParsedItem item();
    std::vector<ParsedSource> sources();
    ParsedSource source();
    ParsedSource singleSource();
    std::optional<JoinOp> joinOp();
    QString alias();

    // Changes
    ParsedStatement insert();
    ParsedStatement update();
    ParsedStatement deletion();
    ParsedName columnName();

    // Definitions
    ParsedStatement create();
    ParsedStatement alter();
    ParsedStatement drop();
    Plan createTable();
    Plan createIndex(bool unique);
    void tableConstraint(TableDef& table);
    void columnConstraints(TableDef& table, ColumnDef& column);
    ColumnDef columnDefinition();
    QStringList columnNames();

    TokenStream in_;
    int nesting_ = 0;
};

}  // namespace akarix
