#pragma once

#include <QString>
#include <cstdint>
#include <variant>

#include "platform/runtime/Currency.h"
#include "platform/runtime/Date.h"

namespace akarix {

/// The kinds a value can have; the numbers are the classic VarType results.
enum class VarType {
    Empty = 0,
    Null = 1,
    Integer = 2,
    Long = 3,
    Single = 4,
    Double = 5,
    Currency = 6,
    Date = 7,
    String = 8,
    Boolean = 11,
    Byte = 17,
};

struct NullValue {
    friend bool operator==(NullValue, NullValue) { return true; }
};

/// A value of any kind of the run time. Converting is done by CInt, CLng, CCur, CDbl, CStr, CDate, CBool.
class Variant {
 public:
    Variant() = default;
    Variant(NullValue) : value_(NullValue{}) {}                     // NOLINT(google-explicit-constructor)
    Variant(bool value) : value_(value) {}                          // NOLINT(google-explicit-constructor)
    Variant(std::uint8_t value) : value_(value) {}                  // NOLINT(google-explicit-constructor)
    Variant(std::int16_t value) : value_(value) {}                  // NOLINT(google-explicit-constructor)
    Variant(std::int32_t value) : value_(value) {}                  // NOLINT(google-explicit-constructor)
    Variant(float value) : value_(value) {}                         // NOLINT(google-explicit-constructor)
    Variant(double value) : value_(value) {}                        // NOLINT(google-explicit-constructor)
    Variant(Currency value) : value_(value) {}                      // NOLINT(google-explicit-constructor)
    Variant(Date value) : value_(value) {}                          // NOLINT(google-explicit-constructor)
    Variant(QString value) : value_(std::move(value)) {}            // NOLINT(google-explicit-constructor)
    Variant(const char* utf8) : value_(QString::fromUtf8(utf8)) {}  // NOLINT
    Variant(const char16_t* text) : value_(QString::fromUtf16(text)) {}  // NOLINT
    Variant(std::int64_t) = delete;                                      // no such kind: say Long or Currency

    static Variant Null() { return NullValue{}; }

    VarType Type() const;
    bool IsEmpty() const { return std::holds_alternative<std::monostate>(value_); }
    bool IsNull() const { return std::holds_alternative<NullValue>(value_); }
    bool IsText() const { return std::holds_alternative<QString>(value_); }

    /// The held value; T must be the held kind (asserted).
    template <class T>
    const T& As() const {
        return std::get<T>(value_);
    }
    template <class T>
    const T* If() const {
        return std::get_if<T>(&value_);
    }

    /// Same kind and same value (Null equals Null here); text is compared exactly.
    friend bool operator==(const Variant& a, const Variant& b) = default;

 private:
    std::variant<std::monostate, NullValue, bool, std::uint8_t, std::int16_t, std::int32_t, float, double,
                 Currency, Date, QString>
        value_;
};

}  // namespace akarix
