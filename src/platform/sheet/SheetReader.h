#pragma once

#include <QString>

#include "platform/runtime/RuntimeError.h"
#include "platform/sheet/Sheet.h"

namespace akarix {

/// The workbook is sound, but has no sheet of that name.
struct MissingSheet : RuntimeError {
    using RuntimeError::RuntimeError;
};

/// Reads one sheet of an .xlsx workbook (ECMA-376, SpreadsheetML). Raises 1004 when the file is missing, is
/// no workbook, or has no sheet of that name (MissingSheet); the description says which.
Sheet ReadSheet(const QString& path, const QString& sheetName);

}  // namespace akarix
