#pragma once

#include "platform/dialect/BoundStatement.h"
#include "platform/dialect/Parsed.h"
#include "platform/dialect/Scope.h"

namespace akarix {

/// Binds statements to the tables of a catalogue.
class Binder {
 public:
    explicit Binder(const Catalogue& catalogue) : catalogue_(catalogue) {}

    BoundStatement bind(const ParsedStatement& parsed) const;

 private:
    BoundQuery bound(const ParsedQuery& parsed) const;
    BoundInsert bound(const ParsedInsert& parsed) const;
    BoundUpdate bound(const ParsedUpdate& parsed) const;
    BoundDelete bound(const ParsedDelete& parsed) const;

    /// Binds FROM, puts its tables into \a scope, then binds WHERE.
    BoundRows bindRows(const ParsedSource& source, const ParsedExpression* where, Scope& scope) const;
    void addTable(const QString& name, BoundRows& rows, Scope& scope) const;
    TablePtr tableNamed(const QString& name) const;

    const Catalogue& catalogue_;
};

}  // namespace akarix
