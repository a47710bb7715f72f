#pragma once

#include <QString>

#include "platform/sheet/Sheet.h"

namespace akarix {

/// "Sheet1" of a workbook, read again only when the file has changed. Raises 1004 when it cannot be read.
const Sheet& CachedTemplate(const QString& path);

}  // namespace akarix
