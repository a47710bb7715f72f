#include "platform/runtime/Val.h"

#include <cstdint>

#include "platform/runtime/Decimal.h"
#include "platform/runtime/RadixText.h"

namespace akarix {

namespace {

/// As a literal of the language is read: up to four hexadecimal digits are a signed 16-bit number unless
/// closed by "&", up to eight a signed 32-bit one.
double literalOf(const RadixText& radix) {
    if (radix.bits <= 0xFFFF && !radix.closed) return static_cast<std::int16_t>(radix.bits);
    if (radix.bits <= 0xFFFFFFFF) return static_cast<std::int32_t>(radix.bits);
    return static_cast<double>(radix.bits);
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

}  // namespace

double Val(const QString& text) {
    QString s = text;
    s.removeIf([](QChar c) { return c == u' ' || c == u'\t' || c == u'\n'; });
    if (const auto radix = readRadixText(s)) return literalOf(*radix);

    qsizetype end = 0;
    const auto skipDigits = [&] {
        const qsizetype from = end;
        while (end < s.size() && isDigit(s[end]))
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
