#include "platform/cipher/ColumnDeclaration.h"

#include "platform/cipher/Sqlite.h"
#include "platform/dialect/ColumnValue.h"

namespace akarix {
namespace {

struct DeclaredType {
    FieldType type;
    const char* name;
};

constexpr DeclaredType kDeclared[] = {
    {FieldType::Boolean, "BOOLINT"},
    {FieldType::Byte, "BYTEINT"},
    {FieldType::Integer, "SHORTINT"},
    {FieldType::Long, "LONGINT"},
    {FieldType::Currency, "CURRENCYINT"},
    {FieldType::Single, "SINGLEREAL"},
    {FieldType::Double, "DOUBLEREAL"},
    {FieldType::Date, "DATEREAL"},
    {FieldType::Text, "TEXT"},
    {FieldType::Memo, "MEMOTEXT"},
};

const char* DeclaredName(FieldType type) {
    for (const DeclaredType& declared : kDeclared)
        if (declared.type == type) return declared.name;
    return "TEXT";
}

QByteArray Number(double value) {
    return QByteArray::number(value, 'g', 17);
}

// Written so that Null passes, a number typed as text passes when it is one, and nothing else does: the
// engine tests before it converts.
QByteArray Check(const ColumnDef& column) {
    const ColumnForm& form = FormOf(column.type);
    const QByteArray name = Quoted(column.name);
    const QByteArray between = name + " BETWEEN " + Number(form.low) + " AND " + Number(form.high);
    switch (form.storage) {
        case Storage::Whole: {
            const QByteArray whole = name + "=CAST(" + name + " AS INTEGER)";
            return column.type == FieldType::Currency ? whole : between + " AND " + whole;
        }
        case Storage::Real:
            return between;
        case Storage::Text:
            break;
    }
    const QByteArray length = "length(" + name + ')';
    return column.type == FieldType::Memo
               ? length + ">0"
               : length + " BETWEEN 1 AND " + QByteArray::number(TextWidth(column));
}

}  // namespace

QByteArray ColumnDeclaration(const ColumnDef& column) {
    QByteArray text = Quoted(column.name) + ' ' + DeclaredName(column.type);
    if (column.type == FieldType::Text) text += '(' + QByteArray::number(TextWidth(column)) + ')';
    if (FormOf(column.type).storage == Storage::Text) text += " COLLATE AKARIX_NOCASE";
    if (column.required) text += " NOT NULL";
    if (column.zeroDefault) text += " DEFAULT 0";
    return text + " CHECK(" + Check(column) + ')';
}

std::optional<ColumnDef> ColumnOfDeclaredType(const QString& declared) {
    const qsizetype bracket = declared.indexOf(u'(');
    const QString base = bracket < 0 ? declared : declared.left(bracket);
    for (const DeclaredType& known : kDeclared) {
        if (base != QLatin1String(known.name)) continue;
        ColumnDef column;
        column.type = known.type;
        if (bracket >= 0) column.size = declared.mid(bracket + 1).chopped(1).toInt();
        if (column.type == FieldType::Text) column.size = TextWidth(column);
        return column;
    }
    return std::nullopt;
}

}  // namespace akarix
