#include "platform/cipher/StatementCache.h"

#include <algorithm>

namespace akarix {
namespace {

constexpr std::size_t kMostPlans = 256;
constexpr std::size_t kMostRows = 64;

}  // namespace

sqlite3_stmt* StatementCache::of(const std::shared_ptr<const Plan>& plan) {
    auto found = byPlan_.find(plan.get());
    if (found == byPlan_.end()) {
        makeRoom();
        found = byPlan_.emplace(plan.get(), Entry{plan, Prepare(connection_, plan->text), 0}).first;
    }
    found->second.used = ++uses_;
    return found->second.statement.get();
}

sqlite3_stmt* StatementCache::of(RowWrite kind, const TableDef& table, const std::vector<QString>& columns) {
    const auto found = std::find_if(byRow_.begin(), byRow_.end(), [&](const RowEntry& entry) {
        return entry.kind == kind && entry.table == table.name && entry.columns == columns;
    });
    if (found != byRow_.end()) {
        byRow_.splice(byRow_.begin(), byRow_, found);
    } else {
        byRow_.push_front(
            {kind, table.name, columns, Prepare(connection_, RowWriteText(kind, table, columns))});
        if (byRow_.size() > kMostRows) byRow_.pop_back();
    }
    return byRow_.front().statement.get();
}

void StatementCache::clear() {
    byPlan_.clear();
    byRow_.clear();
}

void StatementCache::makeRoom() {
    if (byPlan_.size() < kMostPlans) return;
    byPlan_.erase(std::min_element(byPlan_.begin(), byPlan_.end(), [](const auto& a, const auto& b) {
        return a.second.used < b.second.used;
    }));
}

}  // namespace akarix
