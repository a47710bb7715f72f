#pragma once

#include <QString>

namespace akarix {

/// Makes the database that a dealer gets with the program: every table, the settings and the payment classes,
/// and no customer yet. Raises 3204 when the file exists.
void CreateDelivered(const QString& path);

}  // namespace akarix
