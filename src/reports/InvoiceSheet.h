#pragma once

#include "reports/InvoiceData.h"

namespace akarix {

/// Opens the template "請求書". Raises 1004 when it is missing, or does not print what an invoice cannot do
/// without.
void OpenInvoiceSheet();

/// Fills the open template with one customer's invoice and prints its pages. A customer who is not known, or
/// has no ledger row of the month, has none. Raises 13 for one without a reading of the month, whose last
/// page is not printed.
void PrintInvoice(const InvoiceMonth& invoice);

}  // namespace akarix
