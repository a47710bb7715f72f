#include "platform/dialect/DefinitionBinder.h"

#include "platform/dialect/DialectError.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

const QString& ColumnIn(const TableDef& table, const QString& name, int number) {
    const int index = table.indexOf(name);
    if (index < 0)
        throw DialectError(number, u"フィールド '%1' がテーブル '%2' にありません。"_s.arg(name, table.name));
    return table.columns[static_cast<std::size_t>(index)].name;
}

}  // namespace

void BindDefinition(Plan& plan, const Catalogue& catalogue) {
    using Definition = Plan::Definition;
    const TableDef* table = catalogue.find(plan.table.name);
    if (plan.definition == Definition::CreateTable) {
        if (table) throw DialectError(3010, u"テーブル '%1' は既に存在します。"_s.arg(table->name));
        return;
    }
    if (!table) throw DialectError(3371, u"テーブル '%1' が見つかりません。"_s.arg(plan.table.name));
    plan.table.name = table->name;
    switch (plan.definition) {
        case Definition::AddColumn:
            if (table->indexOf(plan.column.name) >= 0)
                throw DialectError(3380, u"フィールド '%1' は既に存在します。"_s.arg(plan.column.name));
            break;
        case Definition::AlterColumn:
            plan.column.name = ColumnIn(*table, plan.column.name, 3383);
            break;
        case Definition::CreateIndex:
            for (QString& column : plan.index.columns)
                column = ColumnIn(*table, column, 3409);
            break;
        default:
            break;
    }
}

}  // namespace akarix
