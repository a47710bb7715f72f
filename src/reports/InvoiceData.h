#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "platform/dao/Recordset.h"
#include "platform/runtime/Variant.h"
#include "values/BillingMonth.h"

namespace akarix {

/// Whose invoice, of which billing month.
struct InvoiceMonth {
    std::int32_t deal = 0;
    BillingMonth month;
};

/// The month's reading; all 0 without a day for a customer who was not read.
struct InvoiceReading {
    bool found = false;
    Currency zenkaiMeter, koukanMeter, koukanGoMeter, konkaiMeter, suu, gaku;
    QString day;  ///< "2024/3/20", which need not be a date
    bool exchanged() const { return !koukanMeter.IsZero(); }
};

/// One line of the month's slips.
struct InvoiceLine {
    Variant hizuke;  ///< a date or Null
    QString name;
    Currency suu, tanka, gaku;
};

/// What the month's ledger row says.
struct InvoiceLedger {
    Currency zenkaiGaku, gaku, nGaku;
};

// What an invoice is made of, however it is laid out. Nulls are 0 and empty texts.

InvoiceReading ReadInvoiceReading(const InvoiceMonth& invoice);
/// The month's slips in the order of their numbers.
std::vector<InvoiceLine> ReadInvoiceLines(const InvoiceMonth& invoice);
std::optional<InvoiceLedger> ReadInvoiceLedger(const InvoiceMonth& invoice);
/// One row with the month's sales as tGaku, Null without slips.
Recordset OpenSalesSum(const InvoiceMonth& invoice);
/// The customer's own row, or none.
Recordset OpenInvoiceCustomer(std::int32_t deal);

}  // namespace akarix
