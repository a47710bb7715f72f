#pragma once

#include <QGridLayout>
#include <QHBoxLayout>

#include "platform/forms/ComboBox.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/forms/TextBox.h"

namespace akarix {

/// One line of a screen: a caption in the label column, then whatever belongs to it, left to right. A control
/// that takes part in the walk gets the next TabIndex of the form unless it has one.
class FieldLine {
 public:
    FieldLine(Form& form, QHBoxLayout* line) : form_(form), line_(line) {}

    /// A text box as wide as its bytes of text; sets MaxLength too. \param shownBytes the width, where it
    /// differs.
    FieldLine& text(TextBox& box, int bytes, int shownBytes = 0);
    FieldLine& combo(ComboBox& box, int shownBytes);
    FieldLine& lookup(Image& picture);
    /// The name beside a code, wide enough for so many bytes.
    FieldLine& name(Label& label, int bytes);
    FieldLine& note(const QString& text);
    FieldLine& button(CommandButton& button);
    FieldLine& widget(QWidget* widget);

 private:
    Form& form_;
    QHBoxLayout* line_;
};

/// Rows of fields with their captions aligned, in one or more columns side by side.
class FieldLayout {
 public:
    explicit FieldLayout(Form& form);

    FieldLine row(const QString& caption);
    /// The next rows stand in a new column, from the top.
    void nextColumn();
    QGridLayout* layout() const { return grid_; }

 private:
    Form& form_;
    QGridLayout* grid_;
    int line_ = 0;
    int column_ = 0;
};

/// Equal lines of fields one below the other, each column under its head.
class LineLayout {
 public:
    explicit LineLayout(Form& form);

    /// Names the next column. \param alignment of the head: over figures Qt::AlignRight.
    void head(const QString& caption, Qt::Alignment alignment = Qt::AlignLeft);
    /// Counted from 0, the heads apart.
    FieldLine cell(int line, int column);
    QGridLayout* layout() const { return grid_; }

 private:
    Form& form_;
    QGridLayout* grid_;
    int heads_ = 0;
};

/// Puts a control into the walk at the form's next place, unless it has one.
void JoinWalk(Form& form, QWidget& control);

}  // namespace akarix
