#pragma once

#include <QString>

#include "platform/runtime/Int16.h"

namespace akarix {

class PrintSurface;

enum class TextAlign { Left = 1, Center = 2, Right = 3 };

/// Where the next text stands on the page and how high its line is. Twips; PenX and PenY count from the
/// offsets.
struct Pen {
    Int16 XOffset;
    Int16 YOffset;
    Int16 PenX;
    Int16 PenY;
    TextAlign Align = TextAlign::Left;
    // These three hold from one report to the next until a script sets them.
    Int16 LineStep;  ///< of the tallest text in the line so far; 0 in a line without any
    Int16 AreaWidth;
    Int16 AreaHeight;

    void Init();
    /// The next text goes on behind this one.
    void Print(PrintSurface& surface, const QString& text);
    void NewLine();
    /// A rule over the width of the area.
    void Rule(PrintSurface& surface);
    void ToLeft();
    /// The height of a line, also of one in which nothing stands yet.
    Int16 lineHeight() const;
};

}  // namespace akarix
