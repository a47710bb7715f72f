#include "platform/dialect/ColumnKind.h"

#include <array>
#include <cmath>
#include <limits>

#include "platform/cipher/Identifier.h"

namespace akarix {
namespace {

enum class Storage { Whole, Real, Text };

struct KindForm {
    FieldType type;
    const char* declared;
    Storage storage;
    int bytes;
    double low;
    double high;
};

constexpr double kSingleMost = 3.4028234663852886e38;
constexpr double kDoubleMost = std::numeric_limits<double>::max();
constexpr double kFirstDay = -657434.0;   // 100-01-01
constexpr double kPastLastDay = 2958466;  // the day after 9999-12-31
constexpr int kDefaultTextWidth = 255;

// Any number of 64 bits is a Currency, so its range needs no test.
constexpr std::array<KindForm, 10> kForms{{
    {FieldType::Boolean, "BOOLINT", Storage::Whole, 1, -1, 0},
    {FieldType::Byte, "BYTEINT", Storage::Whole, 1, 0, 255},
    {FieldType::Integer, "SHORTINT", Storage::Whole, 2, -32768, 32767},
    {FieldType::Long, "LONGINT", Storage::Whole, 4, -2147483648.0, 2147483647},
    {FieldType::Currency, "CURRENCYINT", Storage::Whole, 8, 0, 0},
    {FieldType::Single, "SINGLEREAL", Storage::Real, 4, -kSingleMost, kSingleMost},
    {FieldType::Double, "DOUBLEREAL", Storage::Real, 8, -kDoubleMost, kDoubleMost},
    {FieldType::Date, "DATEREAL", Storage::Real, 8, kFirstDay, kPastLastDay},
    {FieldType::Text, "TEXT", Storage::Text, 0, 0, 0},
    {FieldType::Memo, "MEMOTEXT", Storage::Text, 0, 0, 0},
}};

const KindForm& FormOf(FieldType type) {
    for (const KindForm& form : kForms)
        if (form.type == type) return form;
    return kForms[8];
}

QByteArray Number(double value) {
    return QByteArray::number(value, 'g', 17);
}

// Written so that Null passes, a number typed as text passes when it is one, and nothing else does: the
// engine tests before it converts.
QByteArray Check(const ColumnDef& column) {
    const KindForm& form = FormOf(column.type);
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

/// Whether a value is a number that a column of numbers can hold.
bool InRange(const KindForm& form, const StoreValue& value) {
    const auto* whole = std::get_if<std::int64_t>(&value);
    if (form.storage == Storage::Whole) {
        if (!whole || form.type == FieldType::Currency) return whole;
        const auto number = static_cast<double>(*whole);
        return number >= form.low && number <= form.high;
    }
    const auto* real = std::get_if<double>(&value);
    if (!whole && !real) return false;
    const double number = whole ? static_cast<double>(*whole) : *real;
    return number >= form.low && number <= form.high;
}

}  // namespace

QByteArray ColumnDeclaration(const ColumnDef& column) {
    const KindForm& form = FormOf(column.type);
    QByteArray text = Quoted(column.name) + ' ' + form.declared;
    if (column.type == FieldType::Text) text += '(' + QByteArray::number(TextWidth(column)) + ')';
    if (form.storage == Storage::Text) text += " COLLATE AKARIX_NOCASE";
    if (column.required) text += " NOT NULL";
    if (column.zeroDefault) text += " DEFAULT 0";
    return text + " CHECK(" + Check(column) + ')';
}

std::optional<ColumnDef> ColumnOfDeclaredType(const QString& declared) {
    const qsizetype bracket = declared.indexOf(u'(');
    const QString base = bracket < 0 ? declared : declared.left(bracket);
    for (const KindForm& form : kForms) {
        if (base == QLatin1String(form.declared)) {
            ColumnDef column;
            column.type = form.type;
            if (form.type == FieldType::Text)
                column.size = bracket < 0 ? kDefaultTextWidth : declared.mid(bracket + 1).chopped(1).toInt();
            return column;
        }
    }
    return std::nullopt;
}

int TextWidth(const ColumnDef& column) {
    return column.size > 0 ? column.size : kDefaultTextWidth;
}

int KindSize(FieldType type, int textWidth) {
    return type == FieldType::Text ? textWidth : FormOf(type).bytes;
}

bool Fits(const ColumnDef& column, const StoreValue& value) {
    if (std::holds_alternative<std::monostate>(value)) return true;
    const KindForm& form = FormOf(column.type);
    if (form.storage != Storage::Text) return InRange(form, value);
    const auto* text = std::get_if<QString>(&value);
    return text && !text->isEmpty() &&
           (column.type == FieldType::Memo || text->size() <= 2 * TextWidth(column));
}

int MisfitOf(const ColumnDef& column, const StoreValue& value) {
    if (std::holds_alternative<std::monostate>(value)) return column.required ? 3314 : 0;
    const KindForm& form = FormOf(column.type);
    const auto* text = std::get_if<QString>(&value);
    if (form.storage == Storage::Text) {
        if (!text) return 3421;
        if (text->isEmpty()) return 3315;
        return column.type == FieldType::Text && text->size() > TextWidth(column) ? 3163 : 0;
    }
    if (text) return 3421;
    return InRange(form, value) ? 0 : 6;
}

}  // namespace akarix
