#include <algorithm>
#include <array>

#include "platform/dialect/Parser.h"
#include "platform/dialect/StoreError.h"
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

}  // namespace

Definition Parser::create() {
    Definition read;
    if (in_.acceptWord(u"INDEX")) {
        read.kind = Definition::Kind::CreateIndex;
        read.index = in_.takeName();
        in_.expect(Keyword::On, u"ON");
        read.table.name = in_.takeName();
        read.indexed = names();
        return read;
    }
    in_.expectWord(u"TABLE");
    read.table.name = in_.takeName();
    in_.expect(u"(");
    do {
        ColumnDef column = columnDefinition();
        if (read.table.indexOf(column.name) >= 0) throw StoreError(3380, column.name);
        read.table.columns.push_back(std::move(column));
    } while (in_.accept(u","));
    in_.expect(u")");
    return read;
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

QStringList Parser::names() {
    in_.expect(u"(");
    QStringList read;
    do {
        read.append(in_.takeName());
    } while (in_.accept(u","));
    in_.expect(u")");
    return read;
}

Definition Parser::alter() {
    Definition read;
    in_.expectWord(u"TABLE");
    read.table.name = in_.takeName();
    read.kind = in_.acceptWord(u"ALTER") ? Definition::Kind::AlterColumn : Definition::Kind::AddColumn;
    if (read.kind == Definition::Kind::AddColumn) in_.expectWord(u"ADD");
    in_.expectWord(u"COLUMN");
    read.column = columnDefinition();
    return read;
}

}  // namespace akarix
