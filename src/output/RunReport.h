#pragma once

namespace akarix {

struct PrintReport;
class PrintSurface;

/// Prints a report page by page: the script, and the detail rows where there are any, until these have ended.
/// An error ends the run without the page it happened on; the pages before it are out.
void RunReport(PrintReport& report, PrintSurface& surface);

}  // namespace akarix
