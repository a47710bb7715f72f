#include <algorithm>
#include <array>

#include "platform/dialect/DialectError.h"
#include "platform/dialect/Parser.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

constexpr int kWidestText = 255;

struct TypeName {
    QStringView name;
    FieldType type;
};

// "Integer" is the 16-bit kind of the catalogue, as everywhere in the system.
const std::array<TypeName, 10> kTypeNames = {{
    {u"LONG", FieldType::Long},
    {u"INTEGER", FieldType::Integer},
    {u"BYTE", FieldType::Byte},
    {u"CURRENCY", FieldType::Currency},
    {u"TEXT", FieldType::Text},
    {u"MEMO", FieldType::Memo},
    {u"DATETIME", FieldType::Date},
    {u"DOUBLE", FieldType::Double},
    {u"SINGLE", FieldType::Single},
    {u"YESNO", FieldType::Boolean},
}};

Plan Definition(Plan::Definition what, const QString& table) {
    Plan plan;
    plan.kind = Plan::Kind::Definition;
    plan.definition = what;
    plan.table.name = table;
    return plan;
}

}  // namespace

ParsedStatement Parser::create() {
    if (in_.acceptWord(u"TABLE")) return ParsedDefinition{createTable()};
    in_.expectWord(u"INDEX");
    return ParsedDefinition{createIndex()};
}

Plan Parser::createTable() {
    Plan plan = Definition(Plan::Definition::CreateTable, in_.takeName());
    in_.expect(u"(");
    do {
        ColumnDef column = columnDefinition();
        if (plan.table.indexOf(column.name) >= 0)
            throw DialectError(3380, u"フィールド '%1' は既に存在します。"_s.arg(column.name));
        plan.table.columns.push_back(std::move(column));
    } while (in_.accept(u","));
    in_.expect(u")");
    return plan;
}

ColumnDef Parser::columnDefinition() {
    ColumnDef column;
    column.name = in_.takeName();
    const auto type = std::find_if(kTypeNames.begin(), kTypeNames.end(),
                                   [&](const TypeName& one) { return in_.atWord(one.name); });
    if (type == kTypeNames.end()) in_.fail(u"フィールド定義のデータ型が正しくありません。"_s);
    in_.take();
    column.type = type->type;
    if (column.type == FieldType::Text) column.size = kWidestText;
    if (column.type == FieldType::Text && in_.accept(u"(")) {
        const Literal& size = in_.peek().literal;
        const auto* characters = std::get_if<std::int64_t>(&size.value);
        if (size.kind != Literal::Kind::Integer || !characters || *characters < 1 ||
            *characters > kWidestText)
            in_.fail(u"フィールドのサイズが正しくありません。"_s);
        column.size = static_cast<int>(*characters);
        in_.take();
        in_.expect(u")");
    }
    return column;
}

Plan Parser::createIndex() {
    IndexDef index;
    index.name = in_.takeName();
    in_.expect(Keyword::On, u"ON");
    Plan plan = Definition(Plan::Definition::CreateIndex, in_.takeName());
    index.columns = columnNames();
    plan.index = std::move(index);
    return plan;
}

QStringList Parser::columnNames() {
    in_.expect(u"(");
    QStringList names;
    do {
        names.append(in_.takeName());
    } while (in_.accept(u","));
    in_.expect(u")");
    return names;
}

ParsedStatement Parser::alter() {
    in_.expectWord(u"TABLE");
    Plan plan = Definition(Plan::Definition::AddColumn, in_.takeName());
    if (in_.acceptWord(u"ALTER"))
        plan.definition = Plan::Definition::AlterColumn;
    else
        in_.expectWord(u"ADD");
    in_.expectWord(u"COLUMN");
    plan.column = columnDefinition();
    return ParsedDefinition{std::move(plan)};
}

}  // namespace akarix
