#pragma once

#include <QString>

#include "platform/runtime/Decimal.h"

namespace akarix {

/// A number under a mask of up to three sections: positive, negative, zero. Rounds half away from zero.
QString FormatDecimal(const Decimal& number, const QString& mask);

}  // namespace akarix
