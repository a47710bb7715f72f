#pragma once

#include <QString>

#include "platform/runtime/Variant.h"

namespace akarix {

/// The year before the first of 平成, by which the screens and the papers count.
constexpr int kEraBase = 1988;

/// Date texts of the screens. Era mode (1) counts years by that era; any other mode shows western years.
/// Set once at start from the option row; read by every helper below.
extern std::int16_t gDateMode;

int DisplayYear(Date date);
/// "2011/03/25" or "23/03/25"; the empty text for date 0.
QString DateText(Date date);
/// A text of month and day gets this year in front; two slashes stay; none gives the empty text.
QString CompleteDate(const QString& text);
QString DotsToSlashes(const QString& text);
/// Two slashes and, after the era correction, a valid date.
bool IsFullDateText(const QString& text);
/// The general parser: 0 on any failure.
Date ParseDate(const QString& text);
/// 0 unless IsFullDateText.
Date ParseStrictDate(const QString& text);
bool IsDateSet(const Variant& value);
/// "日曜" to "土曜".
QString YobiName(Date date);

}  // namespace akarix
