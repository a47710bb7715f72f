#include "platform/runtime/Conversion.h"

#include <cmath>
#include <limits>

#include "platform/runtime/Calendar.h"
#include "platform/runtime/DateText.h"
#include "platform/runtime/Decimal.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/NumberOf.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

namespace {

bool IsSerial(double serial) {
    return serial > -657435.0 && serial < 2958466.0;
}

bool IsDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

/// Applies `cut` (Int or Fix, on Currency and double) to a value of any kind and keeps its kind; Null stays
/// Null, Empty and a Boolean become an Integer, text a Double.
template <class Cut>
Variant WholePart(const Variant& value, Cut cut) {
    switch (value.Type()) {
        case VarType::Empty:
            return std::int16_t{0};
        case VarType::Boolean:
            return std::int16_t{value.As<bool>() ? std::int16_t{-1} : std::int16_t{0}};
        case VarType::Currency:
            return cut(value.As<Currency>());
        case VarType::Single:
            return static_cast<float>(cut(static_cast<double>(value.As<float>())));
        case VarType::Date:
            return Date(cut(value.As<Date>().Serial()));
        case VarType::Double:
        case VarType::String:
            return cut(CDbl(value));
        default:
            return value;
    }
}

}  // namespace

bool CBool(const Variant& value) {
    if (const QString* text = value.If<QString>()) {
        if (text->compare(u"True", Qt::CaseInsensitive) == 0) return true;
        if (text->compare(u"False", Qt::CaseInsensitive) == 0) return false;
    }
    return !NumberOf(value).isZero();
}

std::int16_t CInt(const Variant& value) {
    std::int64_t whole = NumberOf(value).scaled(0);
    const QString* text = value.If<QString>();
    const bool pattern = text && text->contains(u'&') && whole >= 0 && whole <= 0xFFFF;
    if (pattern) whole = static_cast<std::int16_t>(whole);  // "&HFFFF" is a pattern of 16 bits here
    using Limits = std::numeric_limits<std::int16_t>;
    if (whole < Limits::min() || whole > Limits::max()) throw RuntimeError(6);
    return static_cast<std::int16_t>(whole);
}

std::int32_t CLng(const Variant& value) {
    const std::int64_t whole = NumberOf(value).scaled(0);
    using Limits = std::numeric_limits<std::int32_t>;
    if (whole < Limits::min() || whole > Limits::max()) throw RuntimeError(6);
    return static_cast<std::int32_t>(whole);
}

Currency CCur(const Variant& value) {
    return Currency::FromScaled(NumberOf(value).scaled(4));
}

double CDbl(const Variant& value) {
    if (const double* number = value.If<double>()) return *number;
    if (const Date* date = value.If<Date>()) return date->Serial();
    return NumberOf(value).toDouble();
}

Date CDate(const Variant& value) {
    if (const Date* date = value.If<Date>()) return *date;
    if (const QString* text = value.If<QString>()) {
        if (const auto date = ReadDateText(*text)) return *date;
        const auto serial = ReadNumberText(*text);
        if (!serial || !IsSerial(serial->toDouble())) throw RuntimeError(13);
        return Date(serial->toDouble());
    }
    const double serial = CDbl(value);
    if (!IsSerial(serial)) throw RuntimeError(6);
    return Date(serial);
}

QString CStr(const Variant& value) {
    switch (value.Type()) {
        case VarType::Empty:
            return {};
        case VarType::Null:
            throw RuntimeError(94);
        case VarType::String:
            return value.As<QString>();
        case VarType::Boolean:
            return value.As<bool>() ? u"True"_s : u"False"_s;
        case VarType::Date:
            return GeneralDateText(value.As<Date>());
        case VarType::Currency:
            return value.As<Currency>().ToText();
        default:
            return ShownNumberOf(value).generalText(SignificantDigits(value.Type()));
    }
}

Currency Int(Currency value) {
    const std::int64_t rest = value.Scaled() % Currency::kScale;
    const Currency cut = Currency::FromScaled(value.Scaled() - rest);
    return rest < 0 ? cut - Currency(1) : cut;
}

double Int(double value) {
    return std::floor(value);
}

Variant Int(const Variant& value) {
    return WholePart(value, [](auto number) { return Int(number); });
}

Currency Fix(Currency value) {
    return Currency::FromScaled(value.Scaled() - value.Scaled() % Currency::kScale);
}

double Fix(double value) {
    return std::trunc(value);
}

Variant Fix(const Variant& value) {
    return WholePart(value, [](auto number) { return Fix(number); });
}

bool IsNumeric(const Variant& value) {
    if (const QString* text = value.If<QString>()) {
        try {
            const auto number = ReadNumberText(*text);
            if (number) number->toDouble();
            return number.has_value();
        } catch (const RuntimeError&) {
            return false;  // a number, but beyond every kind
        }
    }
    return value.Type() != VarType::Null && value.Type() != VarType::Date;
}

bool IsDate(const Variant& value) {
    if (const QString* text = value.If<QString>()) return ReadDateText(*text).has_value();
    return value.Type() == VarType::Date;
}

double Val(const QString& text) {
    QString s = text;
    s.removeIf([](QChar c) { return c == u' ' || c == u'\t' || c == u'\n'; });
    qsizetype end = 0;
    const auto skipDigits = [&] {
        const qsizetype from = end;
        while (end < s.size() && IsDigit(s[end]))
            ++end;
        return end > from;
    };
    if (end < s.size() && (s[end] == u'-' || s[end] == u'+')) ++end;
    bool found = skipDigits();
    if (end < s.size() && s[end] == u'.') {
        ++end;
        found = skipDigits() || found;
    }
    if (!found) return 0.0;
    if (end < s.size() && QStringView(u"EeDd").contains(s[end])) {
        const qsizetype mantissaEnd = end++;
        if (end < s.size() && (s[end] == u'-' || s[end] == u'+')) ++end;
        if (!skipDigits()) end = mantissaEnd;
    }
    return Decimal::fromPlain(s.left(end))->toDouble();
}

}  // namespace akarix
