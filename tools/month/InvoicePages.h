#pragma once

namespace akarix {
class Database;
}

namespace akarix::month {

struct InvoicePages {
    int all = 0;
    int ofSeveral = 0;  ///< invoices of more than one page
};

/// The pages that the marked invoices of a month must have: each line of a slip and the gas take a line of
/// the sheet.
InvoicePages InvoicePagesOf(Database& db, int year, int month);

}  // namespace akarix::month
