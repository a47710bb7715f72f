#pragma once

#include <QString>
#include <memory>

#include "platform/dao/Recordset.h"

namespace akarix {

class Engine;
class Session;

/// One open file of the store. Use after Close raises 3420.
class Database {
 public:
    /// Runs an action query or a definition. Rows whose key is taken are passed over; a value that does not
    /// fit its column raises (6 out of range, 3163 too long, see MisfitOf) and leaves nothing of the
    /// statement.
    void Execute(const QString& sql);
    Recordset OpenRecordset(const QString& sql);
    void Close();

    const QString& Name() const { return name_; }
    /// The engine behind, for the companion programs and bench/.
    Engine& engine();

 private:
    friend class Workspace;
    Database(const QString& name, std::shared_ptr<Session> session);

    QString name_;
    std::shared_ptr<Session> session_;
};

}  // namespace akarix
