#pragma once

#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "platform/dao/Recordset.h"
#include "platform/dao/Session.h"

namespace akarix {

/// The state of a recordset: its rows once they were needed, the place in them, and the row being written.
struct Recordset::Impl {
    enum class Editing { No, New, Present };

    Impl(std::shared_ptr<Session> ofSession, BoundStatement ofStatement);

    void requireOpen() const;
    /// Reads the rows at the first need.
    void load();
    bool hasRow() const { return position >= 0 && position < count(); }
    int width() const { return static_cast<int>(statement.plan->columns.size()); }
    int count() const { return static_cast<int>(rows.size()); }
    void requireRow();
    void moveTo(int index);

    /// The table behind, when the rows can be written; 3027 when they cannot.
    const TableDef& table();
    const ColumnDef& storedColumn(int index);
    int indexOf(const QString& name) const;
    const ResultColumn& column(int index) const {
        return statement.plan->columns[static_cast<std::size_t>(index)];
    }

    Variant value(int index);
    void setValue(int index, const Variant& value);
    void startNew();
    void insertNew();
    void updatePresent();

    std::shared_ptr<Session> session;
    BoundStatement statement;
    bool open = true;
    bool loaded = false;
    const TableDef* behind = nullptr;  ///< as found in the catalogue of that version
    int behindVersion = 0;
    std::vector<StoreRow> rows;
    int position = 0;
    int seen = 0;  ///< rows the caller has come past, as RecordCount tells them
    bool noMatch = false;
    Editing editing = Editing::No;
    StoreRow buffer;              ///< the row being written, as Fields show it
    std::vector<bool> written;    ///< its columns that were set
    std::vector<StoreRow> added;  ///< before the rows were read
    std::vector<Field> fields;    ///< made at the first need
};

}  // namespace akarix
