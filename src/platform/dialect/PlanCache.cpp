#include "platform/dialect/PlanCache.h"

namespace akarix {

void PlanCache::use(Place place) {
    entries_.splice(entries_.begin(), entries_, place);
    if (last_) last_->next = &*place;
    last_ = &*place;
}

const CachedPlan* PlanCache::find(const QString& key) {
    const auto place = places_.constFind(key);
    if (place == places_.constEnd()) return nullptr;
    use(*place);
    return &entries_.front().plan;
}

void PlanCache::takeExpected() {
    // Its place among those used last may lag: what follows something in use is in use.
    last_ = last_->next;
}

const CachedPlan& PlanCache::keep(const QString& key, CachedPlan plan) {
    if (find(key)) {
        entries_.front().plan = std::move(plan);
        return entries_.front().plan;
    }
    entries_.push_front({key, std::move(plan), nullptr});
    places_.insert(key, entries_.begin());
    use(entries_.begin());
    if (entries_.size() > kMost) {
        for (Entry& entry : entries_)
            if (entry.next == &entries_.back()) entry.next = nullptr;
        places_.remove(entries_.back().key);
        entries_.pop_back();
    }
    return entries_.front().plan;
}

void PlanCache::clear() {
    last_ = nullptr;
    places_.clear();
    entries_.clear();
}

}  // namespace akarix
