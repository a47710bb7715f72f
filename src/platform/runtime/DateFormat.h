#pragma once

#include <QString>

#include "platform/runtime/Date.h"

namespace akarix {

/// A date under a date mask.
QString FormatDate(Date date, const QString& mask);

/// The date, the time or both, as far as there is one: yyyy/mm/dd h:nn:ss.
QString GeneralDateText(Date date);

}  // namespace akarix
