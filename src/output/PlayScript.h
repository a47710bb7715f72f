#pragma once

#include <QString>

namespace akarix {

struct PrintReport;
class PrintSurface;

/// Plays all lines of the report's script in order. A line that cannot be played raises and ends the playing.
void PlayScript(PrintReport& report, PrintSurface& surface);

/// Selects a font and the character set that belongs to it.
void SelectFont(PrintSurface& surface, const QString& name);

}  // namespace akarix
