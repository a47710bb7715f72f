#pragma once

#include <QCache>
#include <list>
#include <memory>

#include "platform/cipher/Sqlite.h"
#include "platform/dialect/BoundStatement.h"

namespace akarix {

/// A bound statement as the engine has it ready.
struct PreparedStatement {
    std::shared_ptr<const BoundStatement> bound;  ///< kept, so that its address stays its own
    Statement statement;
    bool computes = false;  ///< as Written tells
};

/// What AddNew and Edit come to: one row, of which only the columns that were set are written.
enum class RowWrite { Insert, Update };

/// The engine's prepared statements, by bound statement and by row written; the least used of them is given
/// up when there are too many.
class StatementCache {
 public:
    explicit StatementCache(sqlite3* connection) : connection_(connection) {}

    const PreparedStatement& of(const std::shared_ptr<const BoundStatement>& bound);
    /// Takes the columns' values as ?1, ?2 ...; behind them, of an update, the row's number.
    sqlite3_stmt* of(RowWrite kind, const TableDef& table, const std::vector<QString>& columns);
    void clear();

 private:
    struct RowEntry {
        RowWrite kind;
        QString table;
        std::vector<QString> columns;
        Statement statement;
    };

    sqlite3* connection_;
    QCache<const BoundStatement*, PreparedStatement> bound_{256};
    std::list<RowEntry> rows_;  // the one used last in front
};

}  // namespace akarix
