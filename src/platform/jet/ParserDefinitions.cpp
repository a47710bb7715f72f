#include <algorithm>
#include <array>

#include "platform/jet/DialectError.h"
#include "platform/jet/Parser.h"

namespace akarix {
namespace {

constexpr int kWidestText = 255;

struct TypeName {
    QStringView name;
    FieldType type;
};

// "Integer" is the 16-bit kind of the catalogue, as everywhere in the system.
const std::array<TypeName, 29> kTypeNames = {{
    {u"LONG", FieldType::Long},         {u"INTEGER4", FieldType::Long},   {u"INTEGER", FieldType::Integer},
    {u"INT", FieldType::Integer},       {u"SHORT", FieldType::Integer},   {u"SMALLINT", FieldType::Integer},
    {u"INTEGER2", FieldType::Integer},  {u"BYTE", FieldType::Byte},       {u"INTEGER1", FieldType::Byte},
    {u"CURRENCY", FieldType::Currency}, {u"MONEY", FieldType::Currency},  {u"TEXT", FieldType::Text},
    {u"CHAR", FieldType::Text},         {u"VARCHAR", FieldType::Text},    {u"STRING", FieldType::Text},
    {u"MEMO", FieldType::Memo},         {u"LONGTEXT", FieldType::Memo},   {u"DATETIME", FieldType::Date},
    {u"DATE", FieldType::Date},         {u"TIME", FieldType::Date},       {u"DOUBLE", FieldType::Double},
    {u"FLOAT", FieldType::Double},      {u"NUMBER", FieldType::Double},   {u"SINGLE", FieldType::Single},
    {u"REAL", FieldType::Single},       {u"YESNO", FieldType::Boolean},   {u"BOOLEAN", FieldType::Boolean},
    {u"BIT", FieldType::Boolean},       {u"LOGICAL", FieldType::Boolean},
}};

Plan definition(Plan::Definition what, const QString& table) {
    Plan plan;
    plan.kind = Plan::Kind::Definition;
    plan.definition = what;
    plan.table.name = table;
    return plan;
}

}  // namespace

ParsedStatement Parser::create() {
    if (in_.acceptWord(u"TABLE")) return ParsedDefinition{createTable()};
    const bool unique = in_.acceptWord(u"UNIQUE");
    in_.expectWord(u"INDEX");
    return ParsedDefinition{createIndex(unique)};
}

Plan Parser::createTable() {
    Plan plan = definition(Plan::Definition::CreateTable, in_.takeName());
    in_.expect(u"(");
    do {
        if (in_.atWord(u"CONSTRAINT") || in_.atWord(u"PRIMARY") || in_.atWord(u"UNIQUE")) {
            tableConstraint(plan.table);
            continue;
        }
        ColumnDef column = columnDefinition();
        if (plan.table.indexOf(column.name) >= 0) {
            throw dialectError(3380, QStringLiteral("フィールド '%1' は既に存在します。").arg(column.name));
        }
        columnConstraints(plan.table, column);
        plan.table.columns.push_back(std::move(column));
    } while (in_.accept(u","));
    in_.expect(u")");
    for (const QStringList& key : plan.table.uniqueKeys) {
        for (const QString& column : key) {
            if (plan.table.indexOf(column) < 0) {
                throw dialectError(3409,
                                   QStringLiteral("フィールド '%1' はテーブルにありません。").arg(column));
            }
        }
    }
    return plan;
}

void Parser::tableConstraint(TableDef& table) {
    if (in_.acceptWord(u"CONSTRAINT")) in_.takeName();
    const bool primary = in_.acceptWord(u"PRIMARY");
    if (primary) {
        in_.expectWord(u"KEY");
    } else {
        in_.expectWord(u"UNIQUE");
    }
    const QStringList key = columnNames();
    table.uniqueKeys.insert(primary ? table.uniqueKeys.begin() : table.uniqueKeys.end(), key);
}

ColumnDef Parser::columnDefinition() {
    ColumnDef column;
    column.name = in_.takeName();
    const auto type = std::find_if(kTypeNames.begin(), kTypeNames.end(),
                                   [&](const TypeName& one) { return in_.atWord(one.name); });
    if (type == kTypeNames.end()) in_.fail(QStringLiteral("フィールド定義のデータ型が正しくありません。"));
    in_.take();
    column.type = type->type;
    if (column.type == FieldType::Text) column.size = kWidestText;
    if (column.type == FieldType::Text && in_.accept(u"(")) {
        const Literal& size = in_.peek().literal;
        const auto* characters = std::get_if<std::int64_t>(&size.value);
        if (size.kind != Literal::Kind::Integer || !characters || *characters < 1 ||
            *characters > kWidestText) {
            in_.fail(QStringLiteral("フィールドのサイズが正しくありません。"));
        }
        column.size = static_cast<int>(*characters);
        in_.take();
        in_.expect(u")");
    }
    return column;
}

void Parser::columnConstraints(TableDef& table, ColumnDef& column) {
    for (;;) {
        if (in_.accept(Keyword::Not)) {
            in_.expect(Keyword::Null, u"NULL");
            column.required = true;
            continue;
        }
        if (in_.accept(Keyword::Null)) continue;
        if (in_.acceptWord(u"CONSTRAINT")) in_.takeName();
        if (in_.acceptWord(u"PRIMARY")) {
            in_.expectWord(u"KEY");
            table.uniqueKeys.insert(table.uniqueKeys.begin(), QStringList{column.name});
        } else if (in_.acceptWord(u"UNIQUE")) {
            table.uniqueKeys.push_back(QStringList{column.name});
        } else {
            return;
        }
    }
}

Plan Parser::createIndex(bool unique) {
    IndexDef index;
    index.name = in_.takeName();
    index.unique = unique;
    in_.expect(Keyword::On, u"ON");
    Plan plan = definition(Plan::Definition::CreateIndex, in_.takeName());
    index.columns = columnNames();
    if (in_.acceptWord(u"WITH")) {
        in_.expectWord(u"PRIMARY");
        index.unique = true;
    }
    plan.index = std::move(index);
    return plan;
}

QStringList Parser::columnNames() {
    in_.expect(u"(");
    QStringList names;
    do {
        names.append(in_.takeName());
        if (!in_.accept(Keyword::Desc)) in_.accept(Keyword::Asc);
    } while (in_.accept(u","));
    in_.expect(u")");
    return names;
}

ParsedStatement Parser::alter() {
    in_.expectWord(u"TABLE");
    Plan plan = definition(Plan::Definition::AddColumn, in_.takeName());
    if (in_.acceptWord(u"DROP")) {
        plan.definition = Plan::Definition::DropColumn;
        in_.acceptWord(u"COLUMN");
        plan.column.name = in_.takeName();
        return ParsedDefinition{std::move(plan)};
    }
    if (in_.acceptWord(u"ALTER")) {
        plan.definition = Plan::Definition::AlterColumn;
    } else {
        in_.expectWord(u"ADD");
    }
    in_.acceptWord(u"COLUMN");
    plan.column = columnDefinition();
    columnConstraints(plan.table, plan.column);
    if (!plan.table.uniqueKeys.empty()) in_.fail(QStringLiteral("列の追加や変更ではキーを定義できません。"));
    return ParsedDefinition{std::move(plan)};
}

ParsedStatement Parser::drop() {
    if (in_.acceptWord(u"TABLE"))
        return ParsedDefinition{definition(Plan::Definition::DropTable, in_.takeName())};
    in_.expectWord(u"INDEX");
    const QString name = in_.takeName();
    in_.expect(Keyword::On, u"ON");
    Plan plan = definition(Plan::Definition::DropIndex, in_.takeName());
    plan.index.name = name;
    return ParsedDefinition{std::move(plan)};
}

}  // namespace akarix
