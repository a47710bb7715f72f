#pragma once

#include <QString>

namespace akarix {

struct CapacityKind;

/// The kind that the stored prices of a pattern are of; null where there are none.
const CapacityKind* StoredKind(const QString& pattern);

/// Prints the stored prices of a pattern on the template 価格表: asks for the printer, then fills as many
/// pages as the kind takes, empty ones too. Nothing happens for a pattern without prices. Raises 32755 when
/// the printer dialog is cancelled, and what the Excel driver raises.
void PrintPriceList(const QString& pattern);

}  // namespace akarix
