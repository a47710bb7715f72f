#include "platform/runtime/Conversion.h"

#include <array>
#include <optional>

#include "platform/runtime/NumberOf.h"

namespace akarix {

namespace {

/// The kinds that most texts are made of, written without a detour through their digits. Scaled by 10,000.
QString OfScaled(std::int64_t scaled, bool blank) {
    constexpr int kPlaces = 4;
    std::array<QChar, 24> text{};
    auto from = text.end();
    std::uint64_t rest =
        scaled < 0 ? 0 - static_cast<std::uint64_t>(scaled) : static_cast<std::uint64_t>(scaled);
    bool shown = false;
    const bool whole = rest % Currency::kScale == 0;
    if (whole) rest /= Currency::kScale;
    for (int place = whole ? kPlaces : 0; place < kPlaces; ++place, rest /= 10) {
        const QChar digit(static_cast<char16_t>(u'0' + rest % 10));
        shown = shown || digit != u'0';
        if (shown) *--from = digit;
    }
    if (shown) *--from = u'.';
    // In front of a fraction alone stands no zero.
    for (; rest != 0 || (!shown && from == text.end()); rest /= 10)
        *--from = QChar(static_cast<char16_t>(u'0' + rest % 10));
    if (scaled < 0)
        *--from = u'-';
    else if (blank)
        *--from = u' ';
    return QString(from, text.end() - from);
}

std::optional<std::int64_t> ScaledOf(const Variant& value) {
    if (const auto* number = value.If<std::int32_t>()) return *number * Currency::kScale;
    if (const auto* number = value.If<std::int16_t>()) return *number * Currency::kScale;
    if (const auto* number = value.If<Currency>()) return number->Scaled();
    return std::nullopt;
}

}  // namespace

QString Str(const Variant& value) {
    if (const auto scaled = ScaledOf(value)) return OfScaled(*scaled, true);
    const VarType type = value.Type();
    if (type == VarType::Boolean || type == VarType::Date) return CStr(value);
    const Decimal number = ShownNumberOf(value);
    QString text = number.generalText(SignificantDigits(type));
    if (text.startsWith(QLatin1String("0."))) text.remove(0, 1);
    if (text.startsWith(QLatin1String("-0."))) text.remove(1, 1);
    return number.negative ? text : u' ' + text;
}

QString StrUnpadded(const Variant& value) {
    if (const auto scaled = ScaledOf(value)) return OfScaled(*scaled, false);
    QString text = Str(value);
    if (text.startsWith(u' ')) text.remove(0, 1);
    return text;
}

}  // namespace akarix
