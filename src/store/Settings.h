#pragma once

#include <cstdint>

#include "platform/runtime/Currency.h"

namespace akarix {

/// What the whole program shares of the settings rows; set once at start.
extern Currency gTaxRate;          ///< the constant 5; slips carry their own rate
extern std::int16_t gInvoiceMode;  ///< which invoice layout is issued: 0 drawn, 1 the template, else none
/// True: pages are shown on the screen and go no further. False: they go to the current printer.
extern bool gPrintPreview;

}  // namespace akarix
