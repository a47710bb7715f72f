#pragma once

#include <QString>
#include <QStringList>
#include <map>
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
};

/// The tables of one open file, by name without regard to case.
class Catalogue {
 public:
    const TableDef* find(const QString& table) const;
    void put(TableDef table);
    void remove(const QString& table);
    std::vector<const TableDef*> tables() const;

 private:
    std::map<QString, TableDef> tables_;  // by folded name
};

}  // namespace akarix
