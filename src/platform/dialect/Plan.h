#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

#include "platform/dialect/Schema.h"

namespace akarix {

/// A value as the engine stores it: Currency is its scaled integer, a date its serial number as a double,
/// Boolean -1 or 0, text UTF-16 in QString.
using StoreValue = std::variant<std::monostate, std::int64_t, double, QString>;

/// A column of a result: its name as the statement gives it, its kind, and the stored column behind it, if
/// any.
struct ResultColumn {
    QString name;
    FieldType type = FieldType::Text;
    int size = 0;
    QString table;   ///< empty for an expression
    QString column;  ///< stored name in that table; empty for an expression
};

/// An index that a statement makes.
struct IndexDef {
    QString name;
    QStringList columns;
};

/// A statement that has been bound to the catalogue and written in the engine's own language.
struct Plan {
    enum class Kind { Rows, Change, Definition };

    Kind kind = Kind::Rows;
    QByteArray text;  ///< the engine's SQL, literals as ?1, ?2 ...
    int parameters = 0;

    // Change
    bool computes = false;  ///< it may end in an error with some of its rows changed already

    // Rows
    std::vector<ResultColumn> columns;
    /// One-table query: its table; the engine's row number comes behind the columns as one more value.
    QString updatableTable;

    // Definition
    enum class Definition { None, CreateTable, AddColumn, AlterColumn, CreateIndex };
    Definition definition = Definition::None;
    TableDef table;    ///< CreateTable: all of it; otherwise the name, as the catalogue spells it
    ColumnDef column;  ///< AddColumn, AlterColumn
    IndexDef index;    ///< CreateIndex: on `table`
};

/// A plan with the values of this text's literals.
struct BoundStatement {
    std::shared_ptr<const Plan> plan;
    std::vector<StoreValue> arguments;
};

}  // namespace akarix
