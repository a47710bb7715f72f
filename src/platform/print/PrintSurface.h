#pragma once

#include <QString>

namespace akarix {

/// A page that is being drawn, on paper or on the screen. All measures are twips from the page's upper left
/// corner. Font and paper stay as they were set when the page ends.
class PrintSurface {
 public:
    virtual ~PrintSurface() = default;

    /// The size of this page and the following ones. Raises 380 unless both measures are above 0.
    virtual void SetArea(int width, int height) = 0;

    /// 128: Japanese; a font that is not there is replaced by one like it. 0: the font's own signs (a
    /// barcode), which no other font can stand in for. Counts for the font that is named next, and for no
    /// other.
    virtual void SetFontCharset(int charset) = 0;
    virtual void SetFontName(const QString& name) = 0;
    /// In points; raises 380 outside 1 to 2160.
    virtual void SetFontSize(int points) = 0;
    virtual double TextWidth(const QString& text) = 0;
    virtual double TextHeight(const QString& text) = 0;

    /// \param x,y the upper left corner of the text
    virtual void Print(int x, int y, const QString& text) = 0;
    virtual void Line(int x1, int y1, int x2, int y2) = 0;

    /// Throws away what has been drawn on the page.
    virtual void Cls() = 0;
    /// The page is complete: it goes off as a print job of its own, or is shown until the operator closes it.
    virtual void EndPage() = 0;
};

}  // namespace akarix
