#pragma once

#include <QSizeF>

namespace akarix {

class Form;

/// Stretches every control of a form that is laid out by hand from the previous size to the present one:
/// places and sizes by both ratios, font sizes of boxes, buttons, frames and grids by the ratio of the
/// widths. Centres the form on its screen at the end. A minimised form is left alone.
void ResizeForm(Form& form, QSizeF previous);

}  // namespace akarix
