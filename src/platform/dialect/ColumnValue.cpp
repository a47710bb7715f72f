#include "platform/dialect/ColumnValue.h"

#include <array>
#include <cmath>
#include <limits>

#include "platform/dialect/StoreError.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

constexpr double kSingleMost = 3.4028234663852886e38;
constexpr double kDoubleMost = std::numeric_limits<double>::max();
constexpr double kFirstDay = -657434.0;   // 100-01-01
constexpr double kPastLastDay = 2958466;  // the day after 9999-12-31
constexpr int kDefaultTextWidth = 255;
constexpr auto kScale = static_cast<double>(Currency::kScale);

constexpr std::array<ColumnForm, 10> kForms{{
    {FieldType::Boolean, Storage::Whole, 1, -1, 0},
    {FieldType::Byte, Storage::Whole, 1, 0, 255},
    {FieldType::Integer, Storage::Whole, 2, -32768, 32767},
    {FieldType::Long, Storage::Whole, 4, -2147483648.0, 2147483647},
    {FieldType::Currency, Storage::Whole, 8, 0, 0},
    {FieldType::Single, Storage::Real, 4, -kSingleMost, kSingleMost},
    {FieldType::Double, Storage::Real, 8, -kDoubleMost, kDoubleMost},
    {FieldType::Date, Storage::Real, 8, kFirstDay, kPastLastDay},
    {FieldType::Text, Storage::Text, 0, 0, 0},
    {FieldType::Memo, Storage::Text, 0, 0, 0},
}};

/// Whether a value is a number that a column of numbers can hold.
bool InRange(const ColumnForm& form, const StoreValue& value) {
    const auto* whole = std::get_if<std::int64_t>(&value);
    if (form.storage == Storage::Whole && !whole) return false;
    if (form.type == FieldType::Currency) return true;
    const double number = whole ? static_cast<double>(*whole) : std::get<double>(value);
    return number >= form.low && number <= form.high;
}

StoreValue WholeFromReal(double value) {
    const double rounded = std::nearbyint(value);
    if (!(std::abs(rounded) < 9.2e18)) return value;
    return static_cast<std::int64_t>(rounded);
}

std::int64_t WholeFromCurrency(std::int64_t scaled) {
    const std::int64_t whole = scaled / Currency::kScale;
    const std::int64_t rest = std::abs(scaled % Currency::kScale) * 2;
    const bool away = rest > Currency::kScale || (rest == Currency::kScale && whole % 2 != 0);
    return away ? whole + (scaled < 0 ? -1 : 1) : whole;
}

StoreValue CurrencyFromReal(double value) {
    try {
        return CCur(value).Scaled();
    } catch (const RuntimeError&) {
        return value * kScale;
    }
}

StoreValue TextAs(Kind wanted, const QString& text) {
    switch (wanted) {
        case Kind::Boolean:
            return std::int64_t{CDbl(text) != 0 ? -1 : 0};
        case Kind::Integer:
            return WholeFromReal(CDbl(text));
        case Kind::Currency:
            return CCur(text).Scaled();
        case Kind::Double:
            return CDbl(text);
        case Kind::Date:
            return CDate(text).Serial();
        case Kind::Null:
        case Kind::Text:
            break;
    }
    return text;
}

QString TextOf(Kind kind, const StoreValue& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value))
        return kind == Kind::Currency ? Currency::FromScaled(*whole).ToText() : QString::number(*whole);
    const double real = std::get<double>(value);
    return kind == Kind::Date ? CStr(Date(real)) : CStr(real);
}

StoreValue NumberAs(Kind wanted, Kind kind, const StoreValue& value) {
    const auto* whole = std::get_if<std::int64_t>(&value);
    switch (wanted) {
        case Kind::Boolean:
            return std::int64_t{RealOf(kind, value) != 0 ? -1 : 0};
        case Kind::Integer:
            if (whole) return kind == Kind::Currency ? WholeFromCurrency(*whole) : *whole;
            return WholeFromReal(std::get<double>(value));
        case Kind::Currency:
            if (whole) return kind == Kind::Currency ? value : ScaledWhole(*whole);
            return CurrencyFromReal(std::get<double>(value));
        case Kind::Text:
            return TextOf(kind, value);
        case Kind::Null:
        case Kind::Double:
        case Kind::Date:
            break;
    }
    return RealOf(kind, value);
}

/// The value in the form of the kind; what cannot become one stays as it is, for the check to refuse.
StoreValue As(Kind wanted, Kind kind, const StoreValue& value) {
    if (const auto* text = std::get_if<QString>(&value)) {
        try {
            return TextAs(wanted, *text);
        } catch (const RuntimeError&) {
            return value;
        }
    }
    const bool fraction = kind == Kind::Double || kind == Kind::Date;
    // A whole number that left its 64 bits comes as a double.
    if (!fraction && std::holds_alternative<double>(value)) throw RuntimeError(6);
    return NumberAs(wanted, kind, value);
}

}  // namespace

const ColumnForm& FormOf(FieldType type) {
    for (const ColumnForm& form : kForms)
        if (form.type == type) return form;
    return kForms[8];
}

int TextWidth(const ColumnDef& column) {
    return column.size > 0 ? column.size : kDefaultTextWidth;
}

int MisfitOf(const ColumnDef& column, const StoreValue& value) {
    if (std::holds_alternative<std::monostate>(value)) return column.required ? 3314 : 0;
    const ColumnForm& form = FormOf(column.type);
    const auto* text = std::get_if<QString>(&value);
    if ((form.storage == Storage::Text) != (text != nullptr)) return 3421;
    if (!text) return InRange(form, value) ? 0 : 6;
    if (text->isEmpty()) return 3315;
    return column.type == FieldType::Text && text->size() > TextWidth(column) ? 3163 : 0;
}

StoreValue FittedTo(const ColumnDef& column, Kind kind, const StoreValue& value) {
    const bool isNull = std::holds_alternative<std::monostate>(value);
    StoreValue stored = isNull ? value : As(KindOf(column.type), kind, value);
    if (const int misfit = MisfitOf(column, stored)) throw StoreError(misfit, column.name);
    return stored;
}

double RealOf(Kind kind, const StoreValue& value) {
    const auto* whole = std::get_if<std::int64_t>(&value);
    if (!whole) return std::get<double>(value);
    return kind == Kind::Currency ? Currency::FromScaled(*whole).ToDouble() : static_cast<double>(*whole);
}

StoreValue ScaledWhole(std::int64_t whole) {
    std::int64_t product = 0;
    if (__builtin_mul_overflow(whole, Currency::kScale, &product)) return static_cast<double>(whole) * kScale;
    return product;
}

}  // namespace akarix
