#pragma once

#include "platform/runtime/Currency.h"
#include "platform/runtime/Date.h"
#include "reports/InvoiceData.h"

namespace akarix {

/// Draws one customer's invoice for the pre-printed paper and runs it, a page of its own. A customer who gets
/// none, or is not known, is passed over.
///
/// Raises 3420 at the balance of the month before, so that nothing is printed: see there.
void DrawInvoice(const InvoiceMonth& invoice, Date issued);

/// The part of the page behind the balance: the list of what is charged, the total, the marks. Adds its lines
/// to the print engine's script.
void AddInvoiceAccount(const InvoiceMonth& invoice, const InvoiceReading& reading, Currency zenkaiGaku);

}  // namespace akarix
