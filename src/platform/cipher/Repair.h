#pragma once

#include <QString>

namespace akarix {

/// Rewrites a damaged file: what can still be read goes into a new file beside it, which then takes its
/// place. 3024: no such file; 3045: held by somebody; 3049: nothing can be read with that password.
void RepairStoreFile(const QString& path, const QString& password);

}  // namespace akarix
