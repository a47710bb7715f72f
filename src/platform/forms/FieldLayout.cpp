#include "platform/forms/FieldLayout.h"

#include <QFontMetrics>

#include "platform/forms/Icons.h"
#include "platform/forms/Style.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

constexpr int kColumnsPerBlock = 3;  // caption, fields, the room between two blocks
constexpr int kBlockGap = 24;
constexpr int kLookupIconSize = 16;

/// A line whose fields keep to the left.
QHBoxLayout* FieldRow() {
    auto* line = new QHBoxLayout;
    line->setSpacing(6);
    line->addStretch();
    return line;
}

QGridLayout* FieldGrid() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(5);
    return grid;
}

}  // namespace

FieldLine& FieldLine::text(TextBox& box, int bytes, int shownBytes) {
    box.SetMaxLength(bytes);
    box.setFixedWidth(BoxWidth(shownBytes > 0 ? shownBytes : bytes));
    JoinWalk(form_, box);
    return widget(&box);
}

FieldLine& FieldLine::combo(ComboBox& box, int shownBytes) {
    constexpr int arrow = 24;
    box.setFixedWidth(BoxWidth(shownBytes) + arrow);
    JoinWalk(form_, box);
    return widget(&box);
}

FieldLine& FieldLine::lookup(Image& picture) {
    picture.setPixmap(DrawIcon(Icon::Lookup, kLookupIconSize, &form_));
    picture.setCursor(Qt::PointingHandCursor);
    picture.setToolTip(u"さがす"_s);
    return widget(&picture);
}

FieldLine& FieldLine::name(Label& label, int bytes) {
    label.setMinimumWidth(BoxWidth(bytes));
    return widget(&label);
}

FieldLine& FieldLine::note(const QString& text) {
    auto* label = new Label(text);
    label->setForegroundRole(QPalette::PlaceholderText);
    return widget(label);
}

FieldLine& FieldLine::button(CommandButton& button) {
    JoinWalk(form_, button);
    return widget(&button);
}

FieldLine& FieldLine::widget(QWidget* widget) {
    line_->insertWidget(line_->count() - 1, widget);  // before the stretch that ends the line
    return *this;
}

FieldLayout::FieldLayout(Form& form) : form_(form), grid_(FieldGrid()) {}

FieldLine FieldLayout::row(const QString& caption) {
    auto* label = new Label(caption);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QHBoxLayout* line = FieldRow();
    grid_->addWidget(label, line_, column_);
    grid_->addLayout(line, line_, column_ + 1);
    ++line_;
    return FieldLine(form_, line);
}

void FieldLayout::nextColumn() {
    grid_->setColumnMinimumWidth(column_ + 2, kBlockGap);
    column_ += kColumnsPerBlock;
    line_ = 0;
}

LineLayout::LineLayout(Form& form) : form_(form), grid_(FieldGrid()) {}

void LineLayout::head(const QString& caption, Qt::Alignment alignment) {
    auto* label = new Label(caption);
    label->setAlignment(alignment | Qt::AlignVCenter);
    grid_->addWidget(label, 0, heads_);
    grid_->setColumnStretch(heads_++, 0);
    grid_->setColumnStretch(heads_, 1);  // room to spare stands behind the last column
}

FieldLine LineLayout::cell(int line, int column) {
    QHBoxLayout* row = FieldRow();
    grid_->addLayout(row, line + 1, column);
    return FieldLine(form_, row);
}

void JoinWalk(Form& form, QWidget& control) {
    if (TabIndex(&control) < 0) SetTabIndex(&control, form.takeTabIndex());
}

}  // namespace akarix
