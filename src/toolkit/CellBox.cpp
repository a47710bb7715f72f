#include "toolkit/CellBox.h"

#include "platform/forms/FlexGrid.h"
#include "platform/forms/Form.h"
#include "platform/forms/TextBox.h"
#include "toolkit/FieldWalk.h"

namespace akarix {

QRect CellUnder(FlexGrid& grid, const QWidget& overlay) {
    const QRect cell = grid.CellRect();
    const QPoint place = grid.mapToGlobal(cell.topLeft());
    const QWidget* parent = overlay.parentWidget();
    return {parent ? parent->mapFromGlobal(place) : place, cell.size()};
}

void EditCell(FlexGrid& grid, TextBox& box) {
    box.setFont(grid.font());
    box.setGeometry(CellUnder(grid, box));
    box.show();
    box.raise();
    box.SetText(grid.Text());
    FocusSelect(box);
}

void LeaveCell(FlexGrid& grid, TextBox& box) {
    if (box.isVisible()) SetFocus(&grid);
    box.hide();
}

void WireCellBox(Form& form, FlexGrid& grid, TextBox& box, const std::function<void()>& open,
                 const std::function<void(KeyEvent&)>& key) {
    form.on(
        &grid, &FlexGrid::Click, [open] { open(); });
    form.on(
        &grid, &FlexGrid::RowColChange, [open] { open(); });
    form.on(
        &grid, &FlexGrid::KeyDown,
        [open](KeyEvent& event) {
            if (event.KeyCode == key::Return) open();
        });
    form.on(
        &grid, &FlexGrid::Scroll, [&grid, &box] { LeaveCell(grid, box); });
    form.on(
        &box, &TextBox::KeyDown, [key](KeyEvent& event) { key(event); });
    form.on(&box, &TextBox::LostFocus, [&box] { box.hide(); });
}

}  // namespace akarix
