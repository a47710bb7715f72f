#include "platform/dialect/Scope.h"

#include "platform/dialect/DialectError.h"

namespace akarix {

BoundPtr Scope::column(const ParsedName& name, qsizetype position) const {
    BoundPtr found;
    for (const BoundTable* table : tables_) {
        if (!name.table.isEmpty() && table->definition->name.compare(name.table, Qt::CaseInsensitive) != 0)
            continue;
        const int index = table->definition->indexOf(name.column);
        if (index < 0) continue;
        if (found) throw AmbiguousName(name.column, position);
        found = MakeColumn(table, index);
    }
    return found;
}

const BoundTable* Scope::table(const QString& name) const {
    for (const BoundTable* table : tables_)
        if (table->definition->name.compare(name, Qt::CaseInsensitive) == 0) return table;
    return nullptr;
}

}  // namespace akarix
