#pragma once

#include <QString>
#include <cstdint>
#include <utility>
#include <vector>

namespace akarix {
class Database;
}

namespace akarix::month {

struct Desk;

struct InvoicePages {
    int all = 0;
    int ofSeveral = 0;  ///< invoices of more than one page
};

/// The pages that the marked invoices of a month must have: each line of a slip and the gas take a line of
/// the sheet.
InvoicePages InvoicePagesOf(Database& db, int year, int month);

/// What a month meets beside the usual, and how often, by what it is called.
using HardCases = std::vector<std::pair<QString, std::int64_t>>;

/// Counted in the store where it stands there, else by what was done at the desk.
HardCases HardCasesOf(Database& db, const Desk& desk);

}  // namespace akarix::month
