#include "platform/cipher/RegisterFunctions.h"

#include <unicode/ucol.h>

#include <cstring>
#include <memory>
#include <new>
#include <vector>

#include "platform/cipher/Sqlite.h"
#include "platform/dialect/ColumnValue.h"
#include "platform/dialect/LikePattern.h"
#include "platform/dialect/TextFold.h"
#include "platform/runtime/Currency.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

constexpr char kErrorMark[] = "akarix ";

void Give(sqlite3_context* context, const StoreValue& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value))
        sqlite3_result_int64(context, *whole);
    else if (const auto* real = std::get_if<double>(&value))
        sqlite3_result_double(context, *real);
    else if (const auto* text = std::get_if<QString>(&value))
        sqlite3_result_text16(context, text->utf16(), static_cast<int>(text->size() * 2), SQLITE_TRANSIENT);
    else
        sqlite3_result_null(context);
}

void GiveError(sqlite3_context* context, int number) {
    const QByteArray message = kErrorMark + QByteArray::number(number);
    sqlite3_result_error(context, message.constData(), static_cast<int>(message.size()));
}

std::int64_t Whole(const StoreValue& value) {
    if (const auto* number = std::get_if<std::int64_t>(&value)) return *number;
    throw RuntimeError(6);  // a whole number that left its 64 bits comes as a double
}

using Values = const StoreValue*;

StoreValue Product(Values a) {
    return (Currency::FromScaled(Whole(a[0])) * Currency::FromScaled(Whole(a[1]))).Scaled();
}

StoreValue Quotient(Values a) {
    const double divisor = RealOf(Kind::Double, a[1]);
    if (divisor == 0) throw RuntimeError(11);
    return RealOf(Kind::Double, a[0]) / divisor;
}

StoreValue Liked(Values a) {
    return std::int64_t{LikeMatches(std::get<QString>(a[0]), std::get<QString>(a[1]))};
}

/// A value with its kind, and the type, width and requirement of the column it goes into.
StoreValue Fitted(Values a) {
    ColumnDef column;
    column.type = static_cast<FieldType>(Whole(a[2]));
    column.size = static_cast<int>(Whole(a[3]));
    column.required = Whole(a[4]) != 0;
    return FittedTo(column, static_cast<Kind>(Whole(a[1])), a[0]);
}

/// A function that the written statements call. The same arguments always give the same value. RuntimeError
/// leaves it where the dialect raises.
struct SqlFunction {
    const char* name;
    int arguments;
    bool takesNull;  ///< otherwise a Null argument gives Null without a call
    StoreValue (*run)(Values arguments);
};

constexpr SqlFunction kFunctions[] = {
    {"akarix_mul_currency", 2, false, Product},
    {"akarix_divide", 2, false, Quotient},
    {"akarix_like", 2, false, Liked},
    {"akarix_fit", 5, true, Fitted},
};

void CallFunction(sqlite3_context* context, int count, sqlite3_value** values) {
    const auto* function = static_cast<const SqlFunction*>(sqlite3_user_data(context));
    StoreValue arguments[5];
    for (int i = 0; i < count; ++i) {
        arguments[i] = ValueOf(values[i]);
        if (!function->takesNull && std::holds_alternative<std::monostate>(arguments[i])) return;
    }
    try {
        Give(context, function->run(arguments));
    } catch (const RuntimeError& error) {
        GiveError(context, error.number());
    } catch (const std::bad_variant_access&) {
        GiveError(context, 13);  // a value of another kind than its column declares
    }
}

struct ValueRelease {
    void operator()(sqlite3_value* value) const { sqlite3_value_free(value); }
};
using OwnValue = std::unique_ptr<sqlite3_value, ValueRelease>;

/// The state of First: the value kept so far and the place of its row.
struct Kept {
    OwnValue value;
    std::vector<StoreValue> place;
};

void KeepStep(sqlite3_context* context, int count, sqlite3_value** values) {
    auto** slot = static_cast<Kept**>(sqlite3_aggregate_context(context, sizeof(void*)));
    std::vector<StoreValue> place;
    place.reserve(static_cast<std::size_t>(count));
    for (int i = 1; i < count; ++i)
        place.push_back(ValueOf(values[i]));
    if (!*slot)
        *slot = new Kept;
    else if (place >= (*slot)->place)  // the values of one column are of one kind
        return;
    (*slot)->value.reset(sqlite3_value_dup(values[0]));
    (*slot)->place = std::move(place);
}

void KeepFinal(sqlite3_context* context) {
    auto** slot = static_cast<Kept**>(sqlite3_aggregate_context(context, 0));
    if (!slot || !*slot) return;
    const std::unique_ptr<Kept> kept(*slot);
    sqlite3_result_value(context, kept->value.get());
}

bool IsAscii(const void* bytes, int length) {
    const auto* place = static_cast<const unsigned char*>(bytes);
    for (int i = 0; i < length; ++i)
        if (place[i] >= 0x80) return false;
    return true;
}

unsigned char FoldedAscii(unsigned char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<unsigned char>(c + ('a' - 'A')) : c;
}

/// \param compare what is done with texts that are not plain.
template <class Compare>
int CompareBytes(int lengthA, const void* a, int lengthB, const void* b, Compare compare) {
    if (lengthA == lengthB && std::memcmp(a, b, static_cast<std::size_t>(lengthA)) == 0) return 0;
    if (IsAscii(a, lengthA) && IsAscii(b, lengthB)) {
        const auto* left = static_cast<const unsigned char*>(a);
        const auto* right = static_cast<const unsigned char*>(b);
        for (int i = 0; i < lengthA && i < lengthB; ++i) {
            const int difference = FoldedAscii(left[i]) - FoldedAscii(right[i]);
            if (difference != 0) return difference;
        }
        return lengthA - lengthB;
    }
    return compare(QString::fromUtf8(static_cast<const char*>(a), lengthA),
                   QString::fromUtf8(static_cast<const char*>(b), lengthB));
}

/// The keys' own, which files carry in their schema and which so never changes.
int CompareNoCase(void*, int lengthA, const void* a, int lengthB, const void* b) {
    return CompareBytes(lengthA, a, lengthB, b, [](const QString& left, const QString& right) {
        return left.compare(right, Qt::CaseInsensitive);
    });
}

int CompareAsTexts(void*, int lengthA, const void* a, int lengthB, const void* b) {
    return CompareBytes(lengthA, a, lengthB, b, CompareTexts);
}

int CompareInOrder(void* collator, int lengthA, const void* a, int lengthB, const void* b) {
    UErrorCode status = U_ZERO_ERROR;
    return ucol_strcollUTF8(static_cast<const UCollator*>(collator), static_cast<const char*>(a), lengthA,
                            static_cast<const char*>(b), lengthB, &status);
}

void CloseCollator(void* collator) {
    ucol_close(static_cast<UCollator*>(collator));
}

void Check(int result) {
    if (result != SQLITE_OK) throw std::bad_alloc();  // registering fails for want of memory alone
}

}  // namespace

void RegisterSqlFunctions(sqlite3* connection) {
    for (const SqlFunction& function : kFunctions) {
        Check(sqlite3_create_function_v2(
            connection, function.name, function.arguments, SQLITE_UTF8 | SQLITE_DETERMINISTIC,
            const_cast<SqlFunction*>(&function), CallFunction, nullptr, nullptr, nullptr));
    }
    Check(sqlite3_create_function_v2(connection, "akarix_first", -1, SQLITE_UTF8, nullptr, nullptr, KeepStep,
                                     KeepFinal, nullptr));
    Check(sqlite3_create_collation_v2(connection, "AKARIX_NOCASE", SQLITE_UTF8, nullptr, CompareNoCase,
                                      nullptr));
    Check(sqlite3_create_collation_v2(connection, "AKARIX_TEXT", SQLITE_UTF8, nullptr, CompareAsTexts,
                                      nullptr));

    UErrorCode status = U_ZERO_ERROR;
    UCollator* collator = ucol_open("ja", &status);
    if (U_FAILURE(status)) throw RuntimeError(7);
    ucol_setStrength(collator, UCOL_SECONDARY);
    Check(sqlite3_create_collation_v2(connection, "AKARIX_ORDER", SQLITE_UTF8, collator, CompareInOrder,
                                      CloseCollator));
}

int FunctionErrorNumber(const QByteArray& message) {
    if (message.startsWith(kErrorMark)) return message.mid(sizeof(kErrorMark) - 1).toInt();
    // Messages of the engine that stand for an error of the dialect: a sum past 64 bits, and trees that are
    // deeper in its own form than in the dialect's.
    if (message == "integer overflow") return 6;
    if (message == "parser stack overflow" || message.startsWith("Expression tree is too large")) return 3360;
    return 0;
}

}  // namespace akarix
