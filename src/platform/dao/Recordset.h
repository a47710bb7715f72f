#pragma once

#include <QString>
#include <memory>

#include "platform/dao/Field.h"

namespace akarix {

class Database;
class Session;
struct BoundText;

/// The rows of a query. Nothing is read until the first need; then all rows are read and the engine is let
/// go. A query of one table can be changed through AddNew and Edit. Use after Close raises 3420.
class Recordset {
 public:
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;
    ~Recordset();

    /// Behind the last row. (The classic name EOF is a macro of the C library.)
    bool Eof() const;
    bool Bof() const;
    /// Right only after MoveLast; before it, 0 or 1.
    int RecordCount() const;
    void MoveFirst();  ///< 3021 on an empty set, as the other three
    void MoveLast();
    void MoveNext();
    void MovePrevious();

    void FindFirst(const QString& criteria);
    bool NoMatch() const;

    int FieldCount() const;
    Field& Fields(const QString& name);  ///< 3265 when there is none of that name
    Field& Fields(int index);
    /// The value of a column of the present row.
    Variant operator[](const QString& name) const;

    void AddNew();
    void Edit();
    void Update();  ///< 3022 when a key is broken; 3020 without AddNew or Edit
    void Close();

 private:
    friend class Database;
    Recordset(std::shared_ptr<Session> session, BoundText text);
    std::unique_ptr<RecordsetState> state_;
};

}  // namespace akarix
