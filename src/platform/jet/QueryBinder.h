#pragma once

#include "platform/jet/BoundQuery.h"
#include "platform/jet/ExpressionBinder.h"

namespace akarix {

/// Binds queries, and the FROM and WHERE of changes, to the tables of a catalogue.
class QueryBinder {
 public:
    explicit QueryBinder(const Catalogue& catalogue) : catalogue_(catalogue) {}

    std::shared_ptr<BoundQuery> bind(const ParsedQuery& parsed, const Scope* outer = nullptr);

    /// Binds FROM, puts its tables into \a scope, then binds WHERE.
    BoundRows bindRows(const std::vector<ParsedSource>& sources, const ParsedExpression* where, Scope& scope);
    ExpressionBinder expressions(const Scope& scope);
    const TableDef* tableNamed(const QString& name) const;

 private:
    BoundSelect bindSelect(const ParsedSelect& parsed, const std::vector<ParsedOrder>& order,
                           const Scope* outer);
    BoundSource bindSource(const ParsedSource& parsed, BoundRows& rows, Scope& scope, bool enclosed);
    BoundSource bindJoin(const ParsedJoin& parsed, BoundRows& rows, Scope& scope, bool enclosed);
    BoundSource addTable(std::unique_ptr<BoundTable> table, BoundRows& rows, Scope& scope, bool enclosed);
    void bindItems(const ParsedSelect& parsed, BoundSelect& select, Scope& scope);
    void addStar(const ParsedItem& parsed, BoundSelect& select, const Scope& scope);
    void bindOrder(const std::vector<ParsedOrder>& parsed, BoundSelect& select, const Scope& scope);
    void bindUnionOrder(const std::vector<ParsedOrder>& parsed, BoundQuery& query);

    const Catalogue& catalogue_;
    int tables_ = 0;
};

}  // namespace akarix
