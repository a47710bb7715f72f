#include "platform/dialect/Schema.h"

namespace akarix {

int TableDef::indexOf(const QString& column) const {
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const QString& own = columns[i].name;
        // Another length is another name: case alone never changes it. Most callers spell a name as it is
        // kept.
        if (own.size() == column.size() && (own == column || own.compare(column, Qt::CaseInsensitive) == 0))
            return static_cast<int>(i);
    }
    return -1;
}

TablePtr Catalogue::find(const QString& table) const {
    const auto found = tables_.find(table.toCaseFolded());
    return found == tables_.end() ? nullptr : found->second;
}

void Catalogue::put(TableDef table) {
    const QString key = table.name.toCaseFolded();
    tables_.insert_or_assign(key, std::make_shared<const TableDef>(std::move(table)));
}

std::vector<TablePtr> Catalogue::tables() const {
    std::vector<TablePtr> all;
    for (const auto& [name, table] : tables_)
        all.push_back(table);
    return all;
}

void Catalogue::replace(Catalogue other) {
    tables_ = std::move(other.tables_);
    ++version_;
}

}  // namespace akarix
