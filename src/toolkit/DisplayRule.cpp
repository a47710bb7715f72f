#include "toolkit/DisplayRule.h"

#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"
#include "store/FieldValue.h"
#include "values/NumStr.h"
#include "values/Text.h"

namespace akarix {

DisplayRule Masked(const QString& mask) {
    return [mask](const Variant& value) { return Format(value, mask); };
}

DisplayRule MaskedUnlessZero(const QString& mask) {
    return [mask](const Variant& value) { return CCur(value).IsZero() ? QString() : Format(value, mask); };
}

DisplayRule Figure(const QString& mask) {
    return [mask, known = false, last = Currency(), text = QString()](const Variant& value) mutable {
        const Currency figure = MoneyOf(value);
        if (!known || figure != last) text = Format(figure, mask);
        known = true;
        last = figure;
        return text;
    };
}

QString Number(const Variant& value) {
    return NumStr(NullToZero(value));
}

}  // namespace akarix
