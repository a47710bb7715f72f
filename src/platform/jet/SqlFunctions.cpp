#include "platform/jet/SqlFunctions.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "platform/jet/ColumnKind.h"
#include "platform/jet/LikePattern.h"
#include "platform/jet/Rounding.h"
#include "platform/runtime/CCur.h"
#include "platform/runtime/CDate.h"
#include "platform/runtime/CDbl.h"
#include "platform/runtime/CStr.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

constexpr int kOverflow = 6;
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

StoreValue quotient(const StoreValue* a) {
    if (real(a[1]) == 0) throw RuntimeError(kDivisionByZero);
    return real(a[0]) / real(a[1]);
}

using Values = const StoreValue*;

const std::array kFunctions = {
    // Currency
    SqlFunction{"akarix_mul_currency", 2, false,
                [](Values a) -> StoreValue { return (money(a[0]) * money(a[1])).Scaled(); }},
    SqlFunction{"akarix_currency_text", 1, false,
                [](Values a) -> StoreValue { return money(a[0]).ToText(); }},
    SqlFunction{"akarix_whole_from_currency", 1, false,
                [](Values a) -> StoreValue { return wholeFromCurrency(whole(a[0])); }},
    SqlFunction{"akarix_currency_from_real", 1, false, [](Values a) { return currencyFromReal(real(a[0])); }},
    SqlFunction{"akarix_ccur", 1, false, [](Values a) -> StoreValue { return CCur(real(a[0])).Scaled(); }},
    SqlFunction{"akarix_text_currency", 1, false,
                [](Values a) -> StoreValue { return CCur(text(a[0])).Scaled(); }},
    // Numbers
    SqlFunction{"akarix_divide", 2, false, quotient},
    SqlFunction{"akarix_whole_from_real", 1, false, [](Values a) { return wholeFromReal(real(a[0])); }},
    SqlFunction{"akarix_real_text", 1, false, [](Values a) -> StoreValue { return CStr(real(a[0])); }},
    SqlFunction{"akarix_text_real", 1, false, [](Values a) -> StoreValue { return CDbl(text(a[0])); }},
    // Dates
    SqlFunction{"akarix_date_text", 1, false, [](Values a) -> StoreValue { return CStr(Date(real(a[0]))); }},
    SqlFunction{"akarix_text_date", 1, false,
                [](Values a) -> StoreValue { return CDate(text(a[0])).Serial(); }},
    // Texts
    SqlFunction{"akarix_like", 2, false,
                [](Values a) -> StoreValue { return std::int64_t{likeMatches(text(a[0]), text(a[1]))}; }},
    // Values on their way into columns, texts first into other kinds
    SqlFunction{"akarix_fit", 4, true, fitted},
    SqlFunction{
        "akarix_store_whole", 1, false,
        [](Values a) { return stored(a[0], [](const Variant& v) { return wholeFromReal(CDbl(v)); }); }},
    SqlFunction{"akarix_store_currency", 1, false,
                [](Values a) {
                    return stored(a[0], [](const Variant& v) -> StoreValue { return CCur(v).Scaled(); });
                }},
    SqlFunction{
        "akarix_store_real", 1, false,
        [](Values a) { return stored(a[0], [](const Variant& v) -> StoreValue { return CDbl(v); }); }},
    SqlFunction{"akarix_store_date", 1, false,
                [](Values a) {
                    return stored(a[0], [](const Variant& v) -> StoreValue { return CDate(v).Serial(); });
                }},
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
