#include "store/Settings.h"

namespace akarix {

Currency gTaxRate;
std::int16_t gInvoiceMode = 0;
bool gPrintPreview = false;

}  // namespace akarix
