#pragma once

#include <QString>
#include <QStringList>
#include <map>
#include <memory>
#include <vector>

namespace akarix {

/// Kinds of column; the numbers are DAO's field types.
enum class FieldType {
    Boolean = 1,
    Byte = 2,
    Integer = 3,
    Long = 4,
    Currency = 5,
    Single = 6,
    Double = 7,
    Date = 8,
    Text = 10,
    Memo = 12,
};

struct ColumnDef {
    QString name;
    FieldType type = FieldType::Text;
    int size = 0;              ///< Text: the most characters it holds; 0 otherwise
    bool zeroDefault = false;  ///< a row inserted without the column gets 0
    bool required = false;     ///< NOT NULL
};

struct TableDef {
    QString name;
    std::vector<ColumnDef> columns;
    std::vector<QStringList> uniqueKeys;  ///< column lists; the first is the table's key

    /// Index of a column by its name, without regard to case; -1 when there is none.
    int indexOf(const QString& column) const;
    const ColumnDef& at(int column) const { return columns[static_cast<std::size_t>(column)]; }
};

using TablePtr = std::shared_ptr<const TableDef>;

/// The tables of one open file, by name without regard to case. A table outlives its place here as long as a
/// bound statement speaks of it.
class Catalogue {
 public:
    TablePtr find(const QString& table) const;
    void put(TableDef table);
    std::vector<TablePtr> tables() const;

    /// Takes the tables of another one. What was bound before is out of date then, as the version tells.
    void replace(Catalogue other);
    int version() const { return version_; }

 private:
    std::map<QString, TablePtr> tables_;  // by folded name
    int version_ = 0;
};

}  // namespace akarix
