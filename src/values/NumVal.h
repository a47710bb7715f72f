#pragma once

#include <QString>

#include "platform/runtime/Currency.h"
#include "platform/runtime/Variant.h"

namespace akarix {

/// Keeps digits, "." and "-" in their order; an empty result and "." alone give "0".
QString KeepNumeric(const QString& text);
/// Keeps digits; an empty result gives "0".
QString KeepDigits(const QString& text);
/// Val of the filtered text: "¥1,200" gives 1200, "1-2" gives 1.
double NumVal(const QString& text);
/// 0 for an empty text and a value of 0, else the Currency of the filtered text (13 for "1-2").
Currency ToCurrency(const QString& text);
/// 0 where NumVal is 0, else the conversion of the text as it stands: 13 on "12a", 6 on overflow.
std::int16_t ToInteger(const QString& text);
std::int32_t ToLong(const QString& text);

}  // namespace akarix
