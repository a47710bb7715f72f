#include "toolkit/GridEdit.h"

#include <algorithm>
#include <functional>
#include <iterator>

#include "platform/forms/Control.h"
#include "platform/runtime/RuntimeError.h"
#include "toolkit/CellBox.h"

namespace akarix {

FlexGrid* gGrid = nullptr;
GridForm* gGridForm = nullptr;
QString gGridName;
std::int16_t gColCount = 0;
GridColumn gCols[100];

namespace {

GridColumn& Column(int index) {
    if (index < 0 || index >= static_cast<int>(std::size(gCols))) throw RuntimeError(9);
    return gCols[index];
}

int Alignment(const QString& align) {
    if (align == u"L") return AlignLeftCenter;
    if (align == u"R") return AlignRightCenter;
    return AlignCenterCenter;
}

/// The overlay is a convenience of the screen: a step of it that cannot be done is left out.
void Tried(const std::function<void()>& step) {
    try {
        step();
    } catch (const RuntimeError&) {
    }
}

void EditInBox(TextBox& box, const GridColumn& kind) {
    box.SetIMEMode(static_cast<ImeMode>(kind.Ime));
    EditCell(*gGrid, box);
}

void EditInCombo(ComboBox& combo) {
    const QRect cell = CellUnder(*gGrid, combo);
    combo.setGeometry(QRect(cell.topLeft(), QSize(cell.width(), combo.height())));
    combo.show();
    combo.raise();
    Tried([] { gGridForm->SetCombo(gGridName); });
    SetFocus(&combo);
}

}  // namespace

void GridInit(const QString& name) {
    gGridName = name;
    std::fill(std::begin(gCols), std::end(gCols), GridColumn());
    gColCount = 0;
}

void GridAddCol(const GridColumn& added) {
    Column(gColCount) = added;
    ++gColCount;
}

void GridApply() {
    gGrid->SetCols(gColCount);
    for (int i = 0; i < gColCount; ++i) {
        gGrid->SetTextMatrix(0, i, gCols[i].Title);
        gGrid->SetColWidth(i, gCols[i].Width);
        gGrid->SetColAlignment(i, Alignment(gCols[i].Align));
    }
}

void GridEdit() {
    Tried([] {
        const GridColumn& kind = Column(gGrid->Col());
        if (!kind.Editable) return;
        if (kind.Kind == u"T")
            EditInBox(gGridForm->tBox(), kind);
        else if (ComboBox* combo = gGridForm->cbBox())
            EditInCombo(*combo);
    });
}

void GridNextRow() {
    if (gGrid->Row() + 1 == gGrid->Rows()) return;
    gGrid->SetRow(gGrid->Row() + 1);
    GridEdit();
}

}  // namespace akarix
