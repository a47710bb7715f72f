#pragma once

#include "platform/sheet/Sheet.h"

namespace akarix {

/// Workbooks give column widths in digits of the Normal font. How wide such a digit is comes from a table,
/// not from the fonts at hand: a substitute font has other digits, and a page made to fit would no longer
/// fit.

/// Width of the Normal font's digits in pixels of 1/96 inch.
int DigitPixels(const SheetFont& normal);
/// A column's width in points.
double ColumnPoints(double widthInDigits, int digitPixels);
/// The width of columns that say nothing, in points, for a base of so many digits.
double DefaultColumnPoints(int baseDigits, int digitPixels);

}  // namespace akarix
