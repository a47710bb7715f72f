#pragma once

#include "platform/dialect/Plan.h"

namespace akarix {

/// Checks a definition against the catalogue and spells its names as the catalogue does. Raises 3010 (table
/// exists), 3371 (no table to change), 3380 (column exists), 3383 (no such column),
/// 3409 (an index on a column that is not there).
void BindDefinition(Plan& plan, const Catalogue& catalogue);

}  // namespace akarix
