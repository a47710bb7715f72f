#pragma once

#include <QString>

namespace akarix {

/// The printer dialog: the machine's printers, and "PDF ファイル" with the file to write. Sets
/// Printer::Current(). \param document what is to be printed; the file is offered under this name. Cancelling
/// raises 32755. A machine without any printer still has the PDF file.
///
/// The form is "Printer_frm"; its controls by object name: the list "Printers" (the PDF file is the last
/// row), the spin box "Copies", the box "Path", the buttons "Browse", "Print" and "Cancel", the line
/// "Message".
void ShowPrinter(const QString& document);

}  // namespace akarix
