#pragma once

#include <QHash>
#include <list>
#include <memory>
#include <vector>

#include "platform/cipher/Writer.h"
#include "platform/dialect/Plan.h"

namespace akarix {

/// A plan and where its parameters come from.
struct CachedPlan {
    std::shared_ptr<const Plan> plan;
    std::vector<Slot> parameters;

    /// Of a plan kept by the shape of its text: the literals that are part of the plan, by their numbers.
    std::vector<std::pair<std::size_t, Literal>> staying = {};
};

/// The plans used last, by the key of their statement.
class PlanCache {
 public:
    static constexpr std::size_t kMost = 256;

    struct Entry {
        QString key;
        CachedPlan plan;
        Entry* next;  ///< the one that was used after it the last time
    };

    /// Nothing when the key is not kept. The pointer holds until the next change of the cache.
    const CachedPlan* find(const QString& key);
    const CachedPlan& keep(const QString& key, CachedPlan plan);
    /// A run asks its few statements in the same order over and over: the entry that followed the last one
    /// before, if any.
    const Entry* expected() const { return last_ ? last_->next : nullptr; }
    /// Takes the expected entry for the one asked for.
    void takeExpected();
    void clear();

 private:
    using Place = std::list<Entry>::iterator;

    void use(Place place);

    std::list<Entry> entries_;  // the one used last in front
    QHash<QString, Place> places_;
    Entry* last_ = nullptr;
};

}  // namespace akarix
