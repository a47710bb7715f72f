#include "platform/jet/StatementCache.h"

#include <algorithm>

namespace akarix {
namespace {

constexpr std::size_t kMostPlans = 256;
constexpr std::size_t kMostTexts = 128;

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

sqlite3_stmt* StatementCache::of(const QByteArray& text) {
    auto found = byText_.find(text);
    if (found == byText_.end()) {
        if (byText_.size() >= kMostTexts) {
            byText_.clear();
        }
        found = byText_.emplace(text, Prepare(connection_, text)).first;
    }
    return found->second.get();
}

void StatementCache::clear() {
    byPlan_.clear();
    byText_.clear();
}

void StatementCache::makeRoom() {
    if (byPlan_.size() < kMostPlans) {
        return;
    }
    byPlan_.erase(std::min_element(byPlan_.begin(), byPlan_.end(), [](const auto& a, const auto& b) {
        return a.second.used < b.second.used;
    }));
}

}  // namespace akarix
