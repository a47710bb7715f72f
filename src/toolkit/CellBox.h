#pragma once

#include <QRect>
#include <functional>

#include "platform/forms/KeyEvent.h"

class QWidget;

namespace akarix {

class FlexGrid;
class Form;
class TextBox;

// A box laid over the present cell of a grid, to type there as in a spreadsheet. What it holds reaches the
// cell only where the screen puts it there.

/// The present cell as the overlay's parent sees it.
QRect CellUnder(FlexGrid& grid, const QWidget& overlay);
/// Lays the box there with the cell's text selected, and gives it the keyboard.
void EditCell(FlexGrid& grid, TextBox& box);
/// Hands the keyboard back to the grid; the box hides as it loses it, and with it what was not confirmed.
void LeaveCell(FlexGrid& grid, TextBox& box);

/// Runs `open` where the grid's cursor comes, is clicked or meets Enter, and `key` for the keys of the box,
/// which hides when the grid scrolls under it or the keyboard goes elsewhere.
void WireCellBox(Form& form, FlexGrid& grid, TextBox& box, const std::function<void()>& open,
                 const std::function<void(KeyEvent&)>& key);

}  // namespace akarix
