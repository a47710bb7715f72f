#pragma once

#include <QString>

#include "platform/runtime/Variant.h"

namespace akarix {

/// False for 0 and Empty, else True; text is "True", "False" or a number, else 13. Null is 94.
bool CBool(const Variant& value);

/// To a 16-bit integer, rounded half to even, the range tested after rounding (6). Text by CDbl's rules (13);
/// Null is 94.
std::int16_t CInt(const Variant& value);

/// To a 32-bit integer; rules as CInt.
std::int32_t CLng(const Variant& value);

/// To Currency, rounded half to even on the fifth decimal; text goes by its decimal digits, not through a
/// double.
Currency CCur(const Variant& value);

/// To a double. Text may carry blanks around, a sign, thousands marks, "¥" or "\", parentheses, an exponent;
/// else 13.
double CDbl(const Variant& value);

/// To a date; text by the rules of a year-month-day locale, era names and 年月日 included (see DateText.h);
/// a number, or the text of one, is a serial. Not a date: 13, a number beyond the range of dates: 6.
Date CDate(const Variant& value);

/// The plain text of a value, as joining with "&" gives it; dates as yyyy/mm/dd with a time where there is
/// one. Null is 94, Empty the empty text.
QString CStr(const Variant& value);

/// The greatest whole number not above the value.
Currency Int(Currency value);
double Int(double value);
/// Keeps the kind of its argument; text is read as a double.
Variant Int(const Variant& value);

/// The whole part, cut toward zero.
Currency Fix(Currency value);
double Fix(double value);
Variant Fix(const Variant& value);

/// A number as plain text with a leading blank where it is not negative; no zero before a bare point (" .5").
/// Raises 13 for text that is no number, 94 for Null.
QString Str(const Variant& value);
/// The same without the blank in the place of the sign.
QString StrUnpadded(const Variant& value);

/// The number at the front of a text: blanks, tabs and line feeds are skipped, reading stops at the first
/// character that is no part of a number; "&H" and "&O" are read; 0 when there is none. Never raises 13.
double Val(const QString& text);

/// True for a number and for text that CDbl would accept.
bool IsNumeric(const Variant& value);

/// True for a date and for text that reads as one; a number is no date, nor is its text.
bool IsDate(const Variant& value);

}  // namespace akarix
