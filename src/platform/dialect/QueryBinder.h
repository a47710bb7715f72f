#pragma once

#include "platform/dialect/BoundQuery.h"
#include "platform/dialect/Scope.h"

namespace akarix {

/// Binds queries, and the FROM and WHERE of changes, to the tables of a catalogue.
class QueryBinder {
 public:
    explicit QueryBinder(const Catalogue& catalogue) : catalogue_(catalogue) {}

    BoundQuery bind(const ParsedQuery& parsed) const;

    /// Binds FROM, puts its tables into \a scope, then binds WHERE.
    BoundRows bindRows(const ParsedSource& source, const ParsedExpression* where, Scope& scope) const;
    const TableDef* tableNamed(const QString& name) const;

 private:
    void addTable(const QString& name, BoundRows& rows, Scope& scope) const;

    const Catalogue& catalogue_;
};

}  // namespace akarix
