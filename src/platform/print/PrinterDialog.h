#pragma once

namespace akarix {

/// The printer dialog: the machine's printers, and "PDF ファイル" with the file to write. Sets
/// Printer::Current(). Cancelling raises 32755. A machine without any printer still has the PDF file.
void ShowPrinter();

}  // namespace akarix
