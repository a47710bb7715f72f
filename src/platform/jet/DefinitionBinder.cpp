#include "platform/jet/DefinitionBinder.h"

#include "platform/jet/DialectError.h"

namespace akarix {
namespace {

const QString& columnIn(const TableDef& table, const QString& name, int number) {
    const int index = table.indexOf(name);
    if (index < 0) {
        throw dialectError(
            number, QStringLiteral("フィールド '%1' がテーブル '%2' にありません。").arg(name, table.name));
    }
    return table.columns[static_cast<std::size_t>(index)].name;
}

}  // namespace

void bindDefinition(Plan& plan, const Catalogue& catalogue) {
    using Definition = Plan::Definition;
    const TableDef* table = catalogue.find(plan.table.name);
    if (plan.definition == Definition::CreateTable) {
        if (table)
            throw dialectError(3010, QStringLiteral("テーブル '%1' は既に存在します。").arg(table->name));
        return;
    }
    if (!table) {
        throw dialectError(3371, QStringLiteral("テーブル '%1' が見つかりません。").arg(plan.table.name));
    }
    plan.table.name = table->name;
    switch (plan.definition) {
        case Definition::AddColumn:
            if (table->indexOf(plan.column.name) >= 0) {
                throw dialectError(
                    3380, QStringLiteral("フィールド '%1' は既に存在します。").arg(plan.column.name));
            }
            break;
        case Definition::AlterColumn:
            plan.column.name = columnIn(*table, plan.column.name, 3383);
            break;
        case Definition::CreateIndex:
            for (QString& column : plan.index.columns)
                column = columnIn(*table, column, 3409);
            break;
        default:
            break;
    }
}

}  // namespace akarix
