#include "platform/jet/SqlFunctions.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

#include "platform/jet/ColumnKind.h"
#include "platform/jet/LikePattern.h"
#include "platform/jet/Rounding.h"
#include "platform/jet/TextFold.h"
#include "platform/runtime/CCur.h"
#include "platform/runtime/CDate.h"
#include "platform/runtime/CDbl.h"
#include "platform/runtime/CStr.h"
#include "platform/runtime/Clock.h"
#include "platform/runtime/DatePart.h"
#include "platform/runtime/DateSerial.h"
#include "platform/runtime/Fix.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Int.h"
#include "platform/runtime/RuntimeError.h"
#include "platform/runtime/Trim.h"
#include "platform/runtime/Val.h"

namespace akarix {
namespace {

constexpr int kOverflow = 6;
constexpr int kBadArgument = 5;
constexpr int kDivisionByZero = 11;

std::int64_t whole(const StoreValue& value) {
    if (const auto* number = std::get_if<std::int64_t>(&value)) return *number;
    throw RuntimeError(kOverflow);  // a whole number that left its 64 bits comes as a double
}

double real(const StoreValue& value) {
    if (const auto* number = std::get_if<std::int64_t>(&value)) return static_cast<double>(*number);
    return std::get<double>(value);
}

Currency money(const StoreValue& value) {
    return Currency::FromScaled(whole(value));
}

const QString& text(const StoreValue& value) {
    return std::get<QString>(value);
}

bool isNull(const StoreValue& value) {
    return std::holds_alternative<std::monostate>(value);
}

int smallWhole(const StoreValue& value) {
    const std::int64_t number = whole(value);
    if (number < INT32_MIN || number > INT32_MAX) throw RuntimeError(kOverflow);
    return static_cast<int>(number);
}

/// A count of characters, which may not be negative.
qsizetype length(const StoreValue& value) {
    const std::int64_t number = whole(value);
    if (number < 0) throw RuntimeError(kBadArgument);
    return static_cast<qsizetype>(number);
}

/// A text on its way into a column: converted, or left to be refused there.
template <class Convert>
StoreValue stored(const StoreValue& value, Convert convert) {
    try {
        return convert(Variant(text(value)));
    } catch (const RuntimeError&) {
        return value;
    }
}

/// The value, when it fits a column of that type, width and requirement.
StoreValue fitted(const StoreValue* a) {
    ColumnDef column;
    column.type = static_cast<FieldType>(whole(a[1]));
    column.size = static_cast<int>(whole(a[2]));
    column.required = whole(a[3]) != 0;
    if (const int misfit = MisfitOf(column, a[0])) throw RuntimeError(misfit);
    return a[0];
}

double roundedTo(double value, std::int64_t decimals) {
    if (decimals < 0) throw RuntimeError(kBadArgument);
    const double factor = std::pow(10.0, static_cast<double>(std::min<std::int64_t>(decimals, 15)));
    return std::nearbyint(value * factor) / factor;
}

std::int64_t roundedMoney(std::int64_t scaled, std::int64_t decimals) {
    if (decimals < 0) throw RuntimeError(kBadArgument);
    std::int64_t unit = Currency::kScale;
    for (std::int64_t i = 0; i < decimals && unit > 1; ++i)
        unit /= 10;
    const std::int64_t rest = scaled % unit;
    std::int64_t kept = scaled / unit;
    const std::int64_t twice = std::abs(rest) * 2;
    if (twice > unit || (twice == unit && kept % 2 != 0)) kept += scaled < 0 ? -1 : 1;
    return kept * unit;
}

std::int64_t inRange(std::int64_t value, std::int64_t low, std::int64_t high) {
    if (value < low || value > high) throw RuntimeError(kOverflow);
    return value;
}

StoreValue instr(const StoreValue* a) {
    const qsizetype start = length(a[0]);
    if (start < 1) throw RuntimeError(kBadArgument);
    if (start > text(a[1]).size()) return std::int64_t{0};
    return std::int64_t{text(a[1]).indexOf(text(a[2]), start - 1, Qt::CaseInsensitive) + 1};
}

StoreValue mid(const StoreValue* a) {
    const qsizetype start = length(a[1]);
    if (start < 1) throw RuntimeError(kBadArgument);
    return text(a[0]).mid(start - 1, length(a[2]));
}

StoreValue averageMoney(const StoreValue* a) {
    return (money(a[0]) / Currency(whole(a[1]))).Scaled();
}

StoreValue wholeQuotient(const StoreValue* a) {
    if (whole(a[1]) == 0) throw RuntimeError(kDivisionByZero);
    return whole(a[0]) / whole(a[1]);
}

StoreValue remainder(const StoreValue* a) {
    if (whole(a[1]) == 0) throw RuntimeError(kDivisionByZero);
    return whole(a[1]) == -1 ? 0 : whole(a[0]) % whole(a[1]);
}

StoreValue quotient(const StoreValue* a) {
    if (real(a[1]) == 0) throw RuntimeError(kDivisionByZero);
    return real(a[0]) / real(a[1]);
}

StoreValue power(const StoreValue* a) {
    const double result = std::pow(real(a[0]), real(a[1]));
    if (std::isnan(result)) throw RuntimeError(kBadArgument);
    if (std::isinf(result)) throw RuntimeError(kOverflow);
    return result;
}

StoreValue concat(const StoreValue* a) {
    if (isNull(a[0])) return a[1];
    if (isNull(a[1])) return a[0];
    return text(a[0]) + text(a[1]);
}

StoreValue absolute(const StoreValue* a) {
    const auto* number = std::get_if<std::int64_t>(a);
    if (!number) return std::abs(real(a[0]));
    if (*number == INT64_MIN) throw RuntimeError(kOverflow);
    return *number < 0 ? -*number : *number;
}

bool isBefore(const StoreValue& a, const StoreValue& b) {
    if (const auto* left = std::get_if<QString>(&a)) return compareTexts(*left, text(b)) < 0;
    const auto* left = std::get_if<std::int64_t>(&a);
    const auto* right = std::get_if<std::int64_t>(&b);
    return left && right ? *left < *right : real(a) < real(b);
}

/// The bounds of BETWEEN may come in either order.
StoreValue between(const StoreValue* a) {
    const bool turned = isBefore(a[2], a[1]);
    const StoreValue& low = a[turned ? 2 : 1];
    const StoreValue& high = a[turned ? 1 : 2];
    return std::int64_t{isBefore(a[0], low) || isBefore(high, a[0]) ? 0 : -1};
}

StoreValue sign(const StoreValue* a) {
    const double number = real(a[0]);
    return std::int64_t{number > 0 ? 1 : number < 0 ? -1 : 0};
}

using Values = const StoreValue*;

const std::array kFunctions = {
    // Currency
    SqlFunction{"akarix_mul_currency", 2, false, true,
                [](Values a) -> StoreValue { return (money(a[0]) * money(a[1])).Scaled(); }},
    SqlFunction{"akarix_average_currency", 2, false, true, averageMoney},
    SqlFunction{"akarix_currency_text", 1, false, true,
                [](Values a) -> StoreValue { return money(a[0]).ToText(); }},
    SqlFunction{"akarix_whole_from_currency", 1, false, true,
                [](Values a) -> StoreValue { return wholeFromCurrency(whole(a[0])); }},
    SqlFunction{"akarix_currency_from_real", 1, false, true,
                [](Values a) { return currencyFromReal(real(a[0])); }},
    SqlFunction{"akarix_ccur", 1, false, true,
                [](Values a) -> StoreValue { return CCur(real(a[0])).Scaled(); }},
    SqlFunction{"akarix_text_currency", 1, false, true,
                [](Values a) -> StoreValue { return CCur(text(a[0])).Scaled(); }},
    SqlFunction{"akarix_int_currency", 1, false, true,
                [](Values a) -> StoreValue { return Int(money(a[0])).Scaled(); }},
    SqlFunction{"akarix_fix_currency", 1, false, true,
                [](Values a) -> StoreValue { return Fix(money(a[0])).Scaled(); }},
    SqlFunction{"akarix_round_currency", 2, false, true,
                [](Values a) -> StoreValue { return roundedMoney(whole(a[0]), whole(a[1])); }},
    // Numbers
    SqlFunction{"akarix_divide", 2, false, true, quotient},
    SqlFunction{"akarix_whole_divide", 2, false, true, wholeQuotient},
    SqlFunction{"akarix_modulo", 2, false, true, remainder},
    SqlFunction{"akarix_power", 2, false, true, power},
    SqlFunction{"akarix_whole_from_real", 1, false, true, [](Values a) { return wholeFromReal(real(a[0])); }},
    SqlFunction{"akarix_int16", 1, false, true,
                [](Values a) -> StoreValue { return inRange(whole(a[0]), INT16_MIN, INT16_MAX); }},
    SqlFunction{"akarix_int32", 1, false, true,
                [](Values a) -> StoreValue { return inRange(whole(a[0]), INT32_MIN, INT32_MAX); }},
    SqlFunction{"akarix_real_text", 1, false, true, [](Values a) -> StoreValue { return CStr(real(a[0])); }},
    SqlFunction{"akarix_text_real", 1, false, true, [](Values a) -> StoreValue { return CDbl(text(a[0])); }},
    SqlFunction{"akarix_int", 1, false, true, [](Values a) -> StoreValue { return Int(real(a[0])); }},
    SqlFunction{"akarix_fix", 1, false, true, [](Values a) -> StoreValue { return Fix(real(a[0])); }},
    SqlFunction{"akarix_round", 2, false, true,
                [](Values a) -> StoreValue { return roundedTo(real(a[0]), whole(a[1])); }},
    SqlFunction{"akarix_abs", 1, false, true, absolute},
    SqlFunction{"akarix_nz", 2, true, true, [](Values a) { return isNull(a[0]) ? a[1] : a[0]; }},
    SqlFunction{"akarix_between", 3, false, true, between},
    SqlFunction{"akarix_sign", 1, false, true, sign},
    SqlFunction{"akarix_val", 1, false, true, [](Values a) -> StoreValue { return Val(text(a[0])); }},
    // Dates
    SqlFunction{"akarix_date_text", 1, false, true,
                [](Values a) -> StoreValue { return CStr(Date(real(a[0]))); }},
    SqlFunction{"akarix_text_date", 1, false, true,
                [](Values a) -> StoreValue { return CDate(text(a[0])).Serial(); }},
    SqlFunction{"akarix_year", 1, false, true,
                [](Values a) -> StoreValue { return std::int64_t{Year(Date(real(a[0])))}; }},
    SqlFunction{"akarix_month", 1, false, true,
                [](Values a) -> StoreValue { return std::int64_t{Month(Date(real(a[0])))}; }},
    SqlFunction{"akarix_day", 1, false, true,
                [](Values a) -> StoreValue { return std::int64_t{Day(Date(real(a[0])))}; }},
    SqlFunction{
        "akarix_date_serial", 3, false, true,
        [](Values a)
            -> StoreValue { return DateSerial(smallWhole(a[0]), smallWhole(a[1]), smallWhole(a[2])).Serial(); }},
    SqlFunction{"akarix_today", 0, false, false, [](Values) -> StoreValue { return Today().Serial(); }},
    SqlFunction{"akarix_now", 0, false, false, [](Values) -> StoreValue { return Now().Serial(); }},
    // Texts
    SqlFunction{"akarix_like", 2, false, true,
                [](Values a) -> StoreValue { return std::int64_t{likeMatches(text(a[0]), text(a[1]))}; }},
    SqlFunction{"akarix_concat", 2, true, true, concat},
    SqlFunction{"akarix_left", 2, false, true,
                [](Values a) -> StoreValue { return text(a[0]).left(length(a[1])); }},
    SqlFunction{"akarix_right", 2, false, true,
                [](Values a) -> StoreValue { return text(a[0]).right(length(a[1])); }},
    SqlFunction{"akarix_mid", 3, false, true, mid},
    SqlFunction{"akarix_len", 1, false, true,
                [](Values a) -> StoreValue { return std::int64_t{text(a[0]).size()}; }},
    SqlFunction{"akarix_trim", 1, false, true, [](Values a) -> StoreValue { return Trim(text(a[0])); }},
    SqlFunction{"akarix_ltrim", 1, false, true, [](Values a) -> StoreValue { return LTrim(text(a[0])); }},
    SqlFunction{"akarix_rtrim", 1, false, true, [](Values a) -> StoreValue { return RTrim(text(a[0])); }},
    SqlFunction{"akarix_ucase", 1, false, true, [](Values a) -> StoreValue { return text(a[0]).toUpper(); }},
    SqlFunction{"akarix_lcase", 1, false, true, [](Values a) -> StoreValue { return text(a[0]).toLower(); }},
    SqlFunction{"akarix_instr", 3, false, true, instr},
    SqlFunction{"akarix_format_currency", 2, false, true,
                [](Values a) -> StoreValue { return Format(money(a[0]), text(a[1])); }},
    SqlFunction{"akarix_format_real", 2, false, true,
                [](Values a) -> StoreValue { return Format(real(a[0]), text(a[1])); }},
    SqlFunction{"akarix_format_date", 2, false, true,
                [](Values a) -> StoreValue { return Format(Date(real(a[0])), text(a[1])); }},
    SqlFunction{"akarix_format_text", 2, false, true,
                [](Values a) -> StoreValue { return Format(text(a[0]), text(a[1])); }},
    // Values on their way into columns, texts first into other kinds
    SqlFunction{"akarix_fit", 4, true, true, fitted},
    SqlFunction{
        "akarix_store_whole", 1, false, true,
        [](Values a) { return stored(a[0], [](const Variant& v) { return wholeFromReal(CDbl(v)); }); }},
    SqlFunction{
        "akarix_store_currency", 1, false, true,
        [](Values
               a) { return stored(a[0], [](const Variant& v) -> StoreValue { return CCur(v).Scaled(); }); }},
    SqlFunction{
        "akarix_store_real", 1, false, true,
        [](Values a) { return stored(a[0], [](const Variant& v) -> StoreValue { return CDbl(v); }); }},
    SqlFunction{
        "akarix_store_date", 1, false, true,
        [](Values
               a) { return stored(a[0], [](const Variant& v) -> StoreValue { return CDate(v).Serial(); }); }},
};

}  // namespace

std::span<const SqlFunction> sqlFunctions() {
    return kFunctions;
}

const SqlFunction& sqlFunction(const char* name) {
    const auto* const found =
        std::find_if(kFunctions.begin(), kFunctions.end(),
                     [name](const SqlFunction& one) { return std::strcmp(one.name, name) == 0; });
    Q_ASSERT(found != kFunctions.end());
    return *found;
}

}  // namespace akarix
