#include "platform/jet/PlanCache.h"

namespace akarix {

const CachedPlan* PlanCache::find(const QString& key) {
    const auto place = places_.constFind(key);
    if (place == places_.constEnd()) return nullptr;
    entries_.splice(entries_.begin(), entries_, *place);
    return &entries_.front().plan;
}

const CachedPlan& PlanCache::keep(const QString& key, CachedPlan plan) {
    if (find(key)) {
        entries_.front().plan = std::move(plan);
        return entries_.front().plan;
    }
    entries_.push_front({key, std::move(plan)});
    places_.insert(key, entries_.begin());
    if (entries_.size() > kMost) {
        places_.remove(entries_.back().key);
        entries_.pop_back();
    }
    return entries_.front().plan;
}

void PlanCache::clear() {
    places_.clear();
    entries_.clear();
}

}  // namespace akarix
