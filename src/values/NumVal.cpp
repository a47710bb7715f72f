#include "values/NumVal.h"

#include "platform/runtime/Conversion.h"
#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

bool IsDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

template <class Keep>
QString Filtered(const QString& text, Keep keep) {
    QString kept;
    for (const QChar c : text)
        if (keep(c)) kept += c;
    return kept;
}

}  // namespace

QString KeepNumeric(const QString& text) {
    const QString kept = Filtered(text, [](QChar c) { return IsDigit(c) || c == u'.' || c == u'-'; });
    return kept.isEmpty() || kept == u"." ? u"0"_s : kept;
}

QString KeepDigits(const QString& text) {
    const QString kept = Filtered(text, IsDigit);
    return kept.isEmpty() ? u"0"_s : kept;
}

double NumVal(const QString& text) {
    return Val(KeepNumeric(text));
}

Currency ToCurrency(const QString& text) {
    return NumVal(text) == 0.0 ? Currency() : CCur(KeepNumeric(text));
}

// The two below convert the text as typed: a letter in a code must stop the operator, not vanish.

std::int16_t ToInteger(const QString& text) {
    return NumVal(text) == 0.0 ? std::int16_t{0} : CInt(text);
}

std::int32_t ToLong(const QString& text) {
    return NumVal(text) == 0.0 ? 0 : CLng(text);
}

}  // namespace akarix
