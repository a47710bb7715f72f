#pragma once

#include <map>

#include "platform/jet/BoundQuery.h"

namespace akarix {

/// The names a piece of a statement can see: the tables of its FROM, the aliases of its select list where
/// they count, and what stands around it.
class Scope {
 public:
    explicit Scope(const Scope* outer = nullptr) : outer_(outer) {}

    void add(const BoundTable* table) { tables_.push_back(table); }
    void nameResult(const QString& alias, BoundPtr expression) {
        results_[alias.toCaseFolded()] = std::move(expression);
    }

    /// A stored column; 3079 when several tables have it. Nothing when there is none.
    BoundPtr column(const ParsedName& name, qsizetype position) const;
    BoundPtr result(const QString& alias) const;
    const BoundTable* table(const QString& alias) const;
    const std::vector<const BoundTable*>& tables() const { return tables_; }

 private:
    const Scope* outer_;
    std::vector<const BoundTable*> tables_;
    std::map<QString, BoundPtr> results_;  // by folded alias
};

BoundPtr boundColumn(const BoundTable* table, int column);

}  // namespace akarix
