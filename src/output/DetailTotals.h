#pragma once

namespace akarix {

struct PrintReport;
class PrintSurface;

/// The sum of the page and the sum so far, or what the owner has in their place.
void PrintPageTotals(PrintReport& report, PrintSurface& surface);
/// The sum of the group, and behind the last one the sum of all; nothing in a report without groups.
void PrintGroupTotals(PrintReport& report, PrintSurface& surface, bool last);

}  // namespace akarix
