#pragma once

#include <QString>
#include <cstdint>
#include <memory>

#include "platform/dao/Recordset.h"

namespace akarix {

class Engine;
class Workspace;

/// One open file of the store. Use after Close raises 3420.
class Database {
 public:
    ~Database();

    /// Runs an action query or a definition. Rows whose key is taken are passed over; a value that does not
    /// fit its column raises (6 out of range, 3163 too long, see MisfitOf) and leaves nothing of the
    /// statement.
    void Execute(const QString& sql);
    Recordset OpenRecordset(const QString& sql);
    /// Rows changed by the last Execute.
    std::int64_t RecordsAffected() const;
    void Close();

    const QString& Name() const;
    /// The engine behind, for the companion programs and bench/.
    Engine& engine();

 private:
    friend class Workspace;
    struct Impl;
    explicit Database(std::unique_ptr<Impl> impl);
    std::unique_ptr<Impl> impl_;
};

}  // namespace akarix
