#pragma once

#include <QString>

#include "output/PrintReport.h"

namespace akarix {

/// The print engine: one report at a time. A report is a script of text lines, each a tag with its argument,
/// in twips from the page's upper left corner ("<FREE>1000,460,山田"). Call PBInit, add the lines, then
/// PBRun; flags, columns and the recordset of detail rows are set in PB() between PBInit and PBRun.
PrintReport& PB();

void PBInit();
/// Raises 9 beyond 3001 lines.
void PBAddLine(const QString& line);
/// Shows the pages one by one in the form FM (gPrintPreview) or sends each to the current printer as a job of
/// its own. What goes wrong is raised; the page it happened on is not printed.
void PBRun();

}  // namespace akarix
