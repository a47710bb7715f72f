#pragma once

#include "platform/dialect/BoundStatement.h"
#include "platform/runtime/Progress.h"

namespace akarix {

/// What the store needs of an engine. An engine writes a bound statement in its own language and keeps what
/// it has written as long as the statement is in use. There is one, on SQLCipher; a second, a database server
/// for several desks, is to fit behind the same operations.
class Engine {
 public:
    virtual ~Engine() = default;

    virtual const Catalogue& catalogue() const = 0;
    /// All rows of a query; the engine keeps nothing open behind it.
    virtual std::vector<StoreRow> rows(const BoundText& text) = 0;
    /// Runs a change; rows whose key is taken are left out. The count of rows changed.
    virtual std::int64_t change(const BoundText& text) = 0;
    /// Raises what CheckDefinition does.
    virtual void define(Definition definition) = 0;

    /// Row operations behind AddNew and Edit. A broken key raises 3022. insertRow gives the row's number.
    virtual std::int64_t insertRow(const TableDef& table, const std::vector<QString>& columns,
                                   const StoreRow& values) = 0;
    virtual void updateRow(const TableDef& table, std::int64_t row, const std::vector<QString>& columns,
                           const StoreRow& values) = 0;

    /// Ends the group of writes under way: everything done so far is on the disk when it returns.
    virtual void flush() = 0;
    /// Copies the file as it stands to another path, under a shared lock. What stands at that path is
    /// replaced by the whole copy or, when the copy breaks off, left alone. Counts in pages.
    virtual void copyTo(const QString& path, Progress& progress = Progress::Silent()) = 0;
    virtual void close() = 0;
};

}  // namespace akarix
