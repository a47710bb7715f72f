#include "platform/cipher/SqlFunctions.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "platform/dialect/ColumnKind.h"
#include "platform/dialect/LikePattern.h"
#include "platform/dialect/Rounding.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

constexpr int kOverflow = 6;
constexpr int kDivisionByZero = 11;

std::int64_t Whole(const StoreValue& value) {
    if (const auto* number = std::get_if<std::int64_t>(&value)) return *number;
    throw RuntimeError(kOverflow);  // a whole number that left its 64 bits comes as a double
}

double Real(const StoreValue& value) {
    if (const auto* number = std::get_if<std::int64_t>(&value)) return static_cast<double>(*number);
    return std::get<double>(value);
}

Currency Money(const StoreValue& value) {
    return Currency::FromScaled(Whole(value));
}

const QString& Text(const StoreValue& value) {
    return std::get<QString>(value);
}

/// A text on its way into a column: converted, or left to be refused there.
template <class Convert>
StoreValue AsStored(const StoreValue& value, Convert convert) {
    try {
        return convert(Variant(Text(value)));
    } catch (const RuntimeError&) {
        return value;
    }
}

/// The value, when it fits a column of that type, width and requirement.
StoreValue Fitted(const StoreValue* a) {
    ColumnDef column;
    column.type = static_cast<FieldType>(Whole(a[1]));
    column.size = static_cast<int>(Whole(a[2]));
    column.required = Whole(a[3]) != 0;
    if (const int misfit = MisfitOf(column, a[0])) throw RuntimeError(misfit);
    return a[0];
}

StoreValue Quotient(const StoreValue* a) {
    if (Real(a[1]) == 0) throw RuntimeError(kDivisionByZero);
    return Real(a[0]) / Real(a[1]);
}

using Values = const StoreValue*;

const std::array kFunctions = {
    // Currency
    SqlFunction{"akarix_mul_currency", 2, false,
                [](Values a) -> StoreValue { return (Money(a[0]) * Money(a[1])).Scaled(); }},
    SqlFunction{"akarix_currency_text", 1, false,
                [](Values a) -> StoreValue { return Money(a[0]).ToText(); }},
    SqlFunction{"akarix_whole_from_currency", 1, false,
                [](Values a) -> StoreValue { return WholeFromCurrency(Whole(a[0])); }},
    SqlFunction{"akarix_currency_from_real", 1, false, [](Values a) { return CurrencyFromReal(Real(a[0])); }},
    SqlFunction{"akarix_ccur", 1, false, [](Values a) -> StoreValue { return CCur(Real(a[0])).Scaled(); }},
    SqlFunction{"akarix_text_currency", 1, false,
                [](Values a) -> StoreValue { return CCur(Text(a[0])).Scaled(); }},
    // Numbers
    SqlFunction{"akarix_divide", 2, false, Quotient},
    SqlFunction{"akarix_whole_from_real", 1, false, [](Values a) { return WholeFromReal(Real(a[0])); }},
    SqlFunction{"akarix_real_text", 1, false, [](Values a) -> StoreValue { return CStr(Real(a[0])); }},
    SqlFunction{"akarix_text_real", 1, false, [](Values a) -> StoreValue { return CDbl(Text(a[0])); }},
    // Dates
    SqlFunction{"akarix_date_text", 1, false, [](Values a) -> StoreValue { return CStr(Date(Real(a[0]))); }},
    SqlFunction{"akarix_text_date", 1, false,
                [](Values a) -> StoreValue { return CDate(Text(a[0])).Serial(); }},
    // Texts
    SqlFunction{"akarix_like", 2, false,
                [](Values a) -> StoreValue { return std::int64_t{LikeMatches(Text(a[0]), Text(a[1]))}; }},
    // Values on their way into columns, texts first into other kinds
    SqlFunction{"akarix_fit", 4, true, Fitted},
    SqlFunction{
        "akarix_store_whole", 1, false,
        [](Values a) { return AsStored(a[0], [](const Variant& v) { return WholeFromReal(CDbl(v)); }); }},
    SqlFunction{"akarix_store_currency", 1, false,
                [](Values a) {
                    return AsStored(a[0], [](const Variant& v) -> StoreValue { return CCur(v).Scaled(); });
                }},
    SqlFunction{
        "akarix_store_real", 1, false,
        [](Values a) { return AsStored(a[0], [](const Variant& v) -> StoreValue { return CDbl(v); }); }},
    SqlFunction{"akarix_store_date", 1, false,
                [](Values a) {
                    return AsStored(a[0], [](const Variant& v) -> StoreValue { return CDate(v).Serial(); });
                }},
};

}  // namespace

std::span<const SqlFunction> SqlFunctions() {
    return kFunctions;
}

const SqlFunction& FindFunction(const char* name) {
    const auto* const found =
        std::find_if(kFunctions.begin(), kFunctions.end(),
                     [name](const SqlFunction& one) { return std::strcmp(one.name, name) == 0; });
    Q_ASSERT(found != kFunctions.end());
    return *found;
}

}  // namespace akarix
