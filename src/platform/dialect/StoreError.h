#pragma once

#include <QString>

#include "platform/runtime/RuntimeError.h"

namespace akarix {

/// An error of the store. A text of its own where the run time's table has a general one only; the detail
/// (a name, the engine's message) stands behind it in brackets.
RuntimeError StoreError(int number, const QString& detail = QString(), const QString& source = QString());

}  // namespace akarix
