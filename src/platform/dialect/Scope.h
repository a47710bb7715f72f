#pragma once

#include "platform/dialect/BoundExpression.h"
#include "platform/dialect/Parsed.h"

namespace akarix {

/// The names an expression can see: the columns of the tables of FROM.
class Scope {
 public:
    void add(const BoundTable* table) { tables_.push_back(table); }

    /// A stored column; 3079 when several tables have it. Nothing when there is none.
    BoundPtr column(const ParsedName& name, qsizetype position) const;
    const BoundTable* table(const QString& name) const;
    const std::vector<const BoundTable*>& tables() const { return tables_; }

 private:
    std::vector<const BoundTable*> tables_;
};

}  // namespace akarix
