#pragma once

#include <QString>

#include "platform/runtime/Currency.h"

namespace akarix {

/// The value of the last line of a memo of arithmetic; 0 for an empty line, a bad expression and a value that
/// is no Currency.
Currency Evaluate(const QString& expression);

}  // namespace akarix
