#pragma once

#include <QString>

#include "platform/sheet/Sheet.h"

namespace akarix {

/// Reads one sheet of an .xlsx workbook (ECMA-376, SpreadsheetML). Raises 1004 when the file is missing or is
/// no workbook, 9 when it has no sheet of that name; the description says which.
Sheet ReadSheet(const QString& path, const QString& sheetName);

}  // namespace akarix
