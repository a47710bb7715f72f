#pragma once

#include <QListWidget>

#include "clerk/Clerk.h"
#include "platform/forms/TextBox.h"
#include "support/GridText.h"

namespace akarix {

/// Lays the answer ready for the printer's dialog: a PDF file.
inline void AnswerPrinter(Clerk& clerk, const QString& path) {
    clerk.expect("Printer_frm", [&clerk, path](QWidget&) {
        auto& printers = clerk.find<QListWidget>("Printers");
        printers.setCurrentRow(printers.count() - 1);
        clerk.find<TextBox>("Path").SetText(path);
        clerk.click("Print");
    });
}

/// Lays the answer ready for the question where a workbook goes.
inline void AnswerSaveAs(Clerk& clerk, const QString& path) {
    clerk.expect("SaveAs_frm", [&clerk, path](QWidget&) {
        clerk.find<TextBox>("Path").SetText(path);
        clerk.click("Save");
    });
}

/// The next dialog of this name is left with Escape.
inline void AnswerEscape(Clerk& clerk, const QString& dialog) {
    clerk.expect(dialog, [&clerk](QWidget&) { clerk.press(Qt::Key_Escape); });
}

}  // namespace akarix
