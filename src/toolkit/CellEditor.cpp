#include "toolkit/CellEditor.h"

#include "toolkit/FieldWalk.h"

namespace akarix {

CellEditor::CellEditor(Form& form, FlexGrid& grid, std::function<bool(int column)> typed,
                       const std::function<bool(int keyCode)>& key)
    : grid_(grid), box_(&Named(new TextBox(&form), u"tBox"_s)), typed_(std::move(typed)) {
    box_->SetIMEMode(ImeMode::Off);
    box_->setAlignment(Qt::AlignRight);
    box_->hide();
    form.on(&grid, &FlexGrid::Click, [this] { open(); });
    form.on(&grid, &FlexGrid::RowColChange, [this] { open(); });
    form.on(&grid, &FlexGrid::KeyDown, [this](KeyEvent& event) {
        if (event.KeyCode == key::Return) open();
    });
    form.on(&grid, &FlexGrid::Scroll, [this] { leave(); });
    form.on(box_, &TextBox::KeyDown, [this, key](KeyEvent& event) {
        const bool escape = event.KeyCode == key::Escape;
        if (escape) leave();
        if (escape || key(event.KeyCode)) event.KeyCode = 0;
    });
    form.on(box_, &TextBox::LostFocus, [this] { box_->hide(); });
}

void CellEditor::open() {
    if (grid_.Rows() <= 1 || !typed_(grid_.Col())) return leave();
    const QRect cell = grid_.CellRect();
    const QPoint place = box_->parentWidget()->mapFromGlobal(grid_.mapToGlobal(cell.topLeft()));
    box_->setFont(grid_.font());
    box_->setGeometry(QRect(place, cell.size()));
    box_->show();
    box_->raise();
    box_->SetText(grid_.Text());
    FocusSelect(*box_);
}

void CellEditor::leave() {
    if (box_->isVisible()) SetFocus(&grid_);
    box_->hide();
}

}  // namespace akarix
