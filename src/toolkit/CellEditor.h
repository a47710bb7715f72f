#pragma once

#include <functional>

#include "platform/forms/FlexGrid.h"
#include "platform/forms/Form.h"
#include "platform/forms/TextBox.h"

namespace akarix {

/// A box for figures laid over the present cell of a grid, to type there as in a spreadsheet. It comes where
/// the grid's cursor comes, is clicked or meets Enter, in the columns that are typed into. What it holds
/// reaches the cell only where the screen takes it. It hides, and what was not taken is lost, when Escape is
/// pressed, when the grid scrolls under it, or when the keyboard goes elsewhere.
class CellEditor {
 public:
    /// \param typed whether a column is typed into
    /// \param key what a key does in the box; True when it was one of the screen's
    CellEditor(Form& form, FlexGrid& grid, std::function<bool(int column)> typed,
               const std::function<bool(int keyCode)>& key);

    QString Text() const { return box_->Text(); }
    /// Lays the box over the present cell with its text selected and gives it the keyboard, or leaves a cell
    /// that is not typed into.
    void open();
    /// Hands the keyboard back to the grid.
    void leave();
    void hide() { box_->hide(); }

 private:
    FlexGrid& grid_;
    TextBox* box_;
    std::function<bool(int column)> typed_;
};

}  // namespace akarix
