#pragma once

#include <QString>

#include "platform/forms/ComboBox.h"
#include "platform/forms/FlexGrid.h"
#include "platform/forms/TextBox.h"

namespace akarix {

/// Editing in a grid by a box laid over the present cell. One screen at a time.
struct GridColumn {
    QString Title;
    QString Fmt;
    std::int16_t Width = 0;
    QString Align;
    bool Editable = true;
    QString Kind;
    std::int16_t Ime = 0;
};

/// What a screen lends to the overlay.
class GridForm {
 public:
    virtual ~GridForm() = default;
    virtual TextBox& tBox() = 0;
    virtual ComboBox* cbBox() = 0;
    virtual void SetCombo(const QString& gridName) = 0;
};

extern FlexGrid* gGrid;
extern GridForm* gGridForm;
extern QString gGridName;
extern std::int16_t gColCount;
extern GridColumn gCols[100];

void GridInit(const QString& name);
void GridAddCol(const GridColumn& column);  ///< a 101st column raises 9
void GridApply();
void GridEdit();
void GridNextRow();

}  // namespace akarix
