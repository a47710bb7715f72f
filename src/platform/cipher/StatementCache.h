#pragma once

#include <list>
#include <memory>
#include <unordered_map>

#include "platform/cipher/RowWrite.h"
#include "platform/cipher/Sqlite.h"
#include "platform/dialect/Plan.h"

namespace akarix {

/// The engine's prepared statements, by plan and by row written; the least used of them is given up when
/// there are too many.
class StatementCache {
 public:
    explicit StatementCache(sqlite3* connection) : connection_(connection) {}

    sqlite3_stmt* of(const std::shared_ptr<const Plan>& plan);
    sqlite3_stmt* of(RowWrite kind, const TableDef& table, const std::vector<QString>& columns);
    void clear();

 private:
    struct Entry {
        std::shared_ptr<const Plan> plan;  ///< kept, so that its address stays its own
        Statement statement;
        std::uint64_t used = 0;
    };

    struct RowEntry {
        RowWrite kind;
        QString table;
        std::vector<QString> columns;
        Statement statement;
    };

    void makeRoom();

    sqlite3* connection_;
    std::unordered_map<const Plan*, Entry> byPlan_;
    std::list<RowEntry> byRow_;  // the one used last in front
    std::uint64_t uses_ = 0;
};

}  // namespace akarix
