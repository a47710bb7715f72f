#include "platform/runtime/Val.h"

#include "platform/runtime/Decimal.h"

namespace akarix {

namespace {

bool IsDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

}  // namespace

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
