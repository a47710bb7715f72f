#include "platform/runtime/Format.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "platform/runtime/Conversion.h"
#include "platform/runtime/DateText.h"
#include "platform/runtime/FormatMask.h"
#include "platform/runtime/NumberOf.h"

namespace akarix {

namespace {

bool IsMissing(const Variant& value) {
    return value.IsNull() || value.IsEmpty();
}

QString UnderNumberMask(const Variant& value, const QString& mask) {
    if (IsMissing(value)) {
        const QString forNull = MaskSections(mask).value(3);
        return forNull.isEmpty() ? QString() : FormatDecimal({}, forNull);
    }
    if (value.IsText() && !IsNumeric(value)) return value.As<QString>();
    return FormatDecimal(ShownNumberOf(value), mask);
}

QString UnderDateMask(const Variant& value, const QString& mask) {
    if (IsMissing(value)) return {};
    const QString section = MaskSections(mask).first();
    if (!value.IsText() || IsDate(value)) return FormatDate(CDate(value), section);
    // The text of a number is a serial, and too great a one overflows as the number itself does.
    return IsNumeric(value) ? FormatDate(CDate(CDbl(value)), section) : value.As<QString>();
}

/// A value that is whole for certain, and short enough to be shown digit by digit.
std::optional<std::int64_t> WholeOf(const Variant& value) {
    switch (value.Type()) {
        case VarType::Byte:
            return value.As<std::uint8_t>();
        case VarType::Integer:
            return value.As<std::int16_t>();
        case VarType::Long:
            return value.As<std::int32_t>();
        case VarType::Currency: {
            const std::int64_t scaled = value.As<Currency>().Scaled();
            if (scaled % Currency::kScale != 0) return std::nullopt;
            return scaled / Currency::kScale;
        }
        case VarType::String: {
            const QString& text = value.As<QString>();
            const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
            constexpr qsizetype kExact = 15;  // digits that a text keeps as a number
            if (text.isEmpty() || text.size() > kExact) return std::nullopt;
            if (!std::all_of(text.begin(), text.end(), isDigit)) return std::nullopt;
            return text.toLongLong();
        }
        default:
            return std::nullopt;
    }
}

/// Codes, dates and the fields of a record: a whole number under zeros alone needs no reading of the mask.
std::optional<QString> ZeroFilled(const Variant& value, const QString& mask) {
    if (!std::all_of(mask.begin(), mask.end(), [](QChar c) { return c == u'0'; })) return std::nullopt;
    const std::optional<std::int64_t> whole = WholeOf(value);
    if (!whole) return std::nullopt;
    const QString digits = QString::number(std::abs(*whole)).rightJustified(mask.size(), u'0');
    return *whole < 0 ? u'-' + digits : digits;
}

}  // namespace

QString Format(const Variant& value) {
    return IsMissing(value) ? QString() : CStr(value);
}

QString Format(const Variant& value, const QString& mask) {
    if (mask.isEmpty()) return Format(value);
    if (auto filled = ZeroFilled(value, mask)) return *std::move(filled);
    return MaskKindOf(mask) == MaskKind::Date ? UnderDateMask(value, mask) : UnderNumberMask(value, mask);
}

}  // namespace akarix
