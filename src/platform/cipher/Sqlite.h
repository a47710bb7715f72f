#pragma once

#include <sqlcipher/sqlite3.h>

#include <QByteArray>
#include <memory>

#include "platform/dialect/StoreValue.h"

namespace akarix {

struct CloseConnection {
    void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
};
struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Connection = std::unique_ptr<sqlite3, CloseConnection>;
using Statement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

/// A name as the engine's SQL quotes it.
QByteArray Quoted(const QString& name);

/// Raises the classic error for the connection's last failure.
[[noreturn]] void RaiseEngineError(sqlite3* connection);

Statement Prepare(sqlite3* connection, const QByteArray& sql);
void Bind(sqlite3_stmt* statement, int index, const StoreValue& value);
StoreValue ValueOf(sqlite3_value* value);
StoreValue ColumnValue(sqlite3_stmt* statement, int index);

/// Steps to the end and resets, also when it raises.
void Run(sqlite3* connection, sqlite3_stmt* statement);
void Run(sqlite3* connection, const QByteArray& sql);

/// True while a row is there; raises on an error.
bool Step(sqlite3* connection, sqlite3_stmt* statement);

/// Resets a statement at the end of a scope, so that it holds no lock behind.
class ResetAtEnd {
 public:
    explicit ResetAtEnd(sqlite3_stmt* statement) : statement_(statement) {}
    ~ResetAtEnd() { sqlite3_reset(statement_); }
    ResetAtEnd(const ResetAtEnd&) = delete;
    ResetAtEnd& operator=(const ResetAtEnd&) = delete;

 private:
    sqlite3_stmt* statement_;
};

}  // namespace akarix
