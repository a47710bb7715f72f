#pragma once

#include <QString>

#include "platform/forms/TextBox.h"

namespace akarix {

/// Puts the address of a postal code (hyphen or not) into the box; an address that stands there is kept.
void FillAddressFromZip(const QString& zip, TextBox& addressBox);

}  // namespace akarix
