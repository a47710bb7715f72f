#include "platform/runtime/Format.h"

#include <QHash>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>

#include "platform/runtime/CDate.h"
#include "platform/runtime/CDbl.h"
#include "platform/runtime/CStr.h"
#include "platform/runtime/DateFormat.h"
#include "platform/runtime/FormatMask.h"
#include "platform/runtime/IsDate.h"
#include "platform/runtime/IsNumeric.h"
#include "platform/runtime/NumberFormat.h"
#include "platform/runtime/NumberOf.h"
#include "platform/runtime/TextFormat.h"

namespace akarix {

namespace {

struct NamedFormat {
    const char* name;
    const char16_t* mask;
};

// As a Japanese system sets them.
constexpr std::array kNumberFormats{
    NamedFormat{"Currency", uR"(\\#,##0)"},
    NamedFormat{"Fixed", u"0.00"},
    NamedFormat{"Standard", u"#,##0.00"},
    NamedFormat{"Percent", u"0.00%"},
    NamedFormat{"Scientific", u"0.00E+00"},
    NamedFormat{"Yes/No", uR"("Yes";"Yes";"No")"},
    NamedFormat{"True/False", uR"("True";"True";"False")"},
    NamedFormat{"On/Off", uR"("On";"On";"Off")"},
};

constexpr std::array kDateFormats{
    NamedFormat{"General Date", u"c"},       NamedFormat{"Long Date", u"dddddd"},
    NamedFormat{"Medium Date", u"yy-mm-dd"}, NamedFormat{"Short Date", u"ddddd"},
    NamedFormat{"Long Time", u"ttttt"},      NamedFormat{"Medium Time", u"hh:nn ampm"},
    NamedFormat{"Short Time", u"hh:nn"},
};

template <class Table>
QString namedMask(const Table& table, const QString& name) {
    for (const NamedFormat& format : table) {
        if (name.compare(QLatin1StringView(format.name), Qt::CaseInsensitive) == 0)
            return QString::fromUtf16(format.mask);
    }
    return {};
}

enum class Rule { GeneralNumber, Number, Date, Text };

/// What a mask asks for; a named one stands for another.
struct ReadMask {
    Rule rule;
    QString mask;
};

ReadMask readMask(const QString& mask) {
    if (mask.compare(u"General Number", Qt::CaseInsensitive) == 0) return {Rule::GeneralNumber, mask};
    if (const QString named = namedMask(kNumberFormats, mask); !named.isEmpty()) return {Rule::Number, named};
    if (const QString named = namedMask(kDateFormats, mask); !named.isEmpty()) return {Rule::Date, named};
    switch (maskKind(mask)) {
        case MaskKind::Number:
            return {Rule::Number, mask};
        case MaskKind::Date:
            return {Rule::Date, mask};
        case MaskKind::Text:
            break;
    }
    return {Rule::Text, mask};
}

/// Remembered, since a grid asks for the same few masks cell after cell.
ReadMask readOnce(const QString& mask) {
    constexpr qsizetype kMost = 200;
    static QHash<QString, ReadMask> known;
    const auto found = known.constFind(mask);
    if (found != known.constEnd()) return *found;
    if (known.size() >= kMost) known.clear();
    return *known.insert(mask, readMask(mask));
}

bool isMissing(const Variant& value) {
    return value.IsNull() || value.IsEmpty();
}

QString underNumberMask(const Variant& value, const QString& mask) {
    if (isMissing(value)) {
        const QString forNull = maskSections(mask).value(3);
        return forNull.isEmpty() ? QString() : formatNumber({}, forNull);
    }
    if (value.IsText() && !IsNumeric(value)) return value.As<QString>();
    return formatNumber(shownNumberOf(value), mask);
}

QString underDateMask(const Variant& value, const QString& mask) {
    if (isMissing(value)) return {};
    const QString section = maskSections(mask).first();
    if (!value.IsText() || IsDate(value)) return formatDate(CDate(value), section);
    // The text of a number is a serial, and too great a one overflows as the number itself does.
    return IsNumeric(value) ? formatDate(CDate(CDbl(value)), section) : value.As<QString>();
}

QString generalNumber(const Variant& value) {
    if (isMissing(value)) return {};
    if (value.IsText() && !IsNumeric(value)) return value.As<QString>();
    const Decimal number = shownNumberOf(value);
    return value.Type() == VarType::Currency ? number.plainText()
                                             : number.generalText(significantDigits(value.Type()));
}

/// A value that is whole for certain, and short enough to be shown digit by digit.
std::optional<std::int64_t> wholeOf(const Variant& value) {
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
std::optional<QString> zeroFilled(const Variant& value, const QString& mask) {
    if (!std::all_of(mask.begin(), mask.end(), [](QChar c) { return c == u'0'; })) return std::nullopt;
    const std::optional<std::int64_t> whole = wholeOf(value);
    if (!whole) return std::nullopt;
    const QString digits = QString::number(std::abs(*whole)).rightJustified(mask.size(), u'0');
    return *whole < 0 ? u'-' + digits : digits;
}

}  // namespace

QString Format(const Variant& value) {
    return isMissing(value) ? QString() : CStr(value);
}

QString Format(const Variant& value, const QString& mask) {
    if (mask.isEmpty()) return Format(value);
    if (auto filled = zeroFilled(value, mask)) return *std::move(filled);
    const ReadMask read = readOnce(mask);
    switch (read.rule) {
        case Rule::GeneralNumber:
            return generalNumber(value);
        case Rule::Number:
            return underNumberMask(value, read.mask);
        case Rule::Date:
            return underDateMask(value, read.mask);
        case Rule::Text:
            break;
    }
    if (value.IsNull() && maskSections(mask).size() < 2) return {};
    return formatText(isMissing(value) ? QString() : CStr(value), mask);
}

}  // namespace akarix
