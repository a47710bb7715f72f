#include "toolkit/LookupForm.h"

#include <QStyle>
#include <QVBoxLayout>

#include "platform/forms/Label.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/Text.h"
#include "store/dbAccess.h"
#include "values/Text.h"

namespace akarix {

namespace {

QString CellText(const Variant& value, const QString& format) {
    return format.isEmpty() || value.IsNull() ? NullToEmpty(value) : Format(value, format);
}

}  // namespace

LookupForm::LookupForm(const QString& name)
    : EntryForm(name, u"さがす"_s), List_(&Named(new FlexGrid(this), u"List"_s)) {}

void LookupForm::forgetChoice() {
    chosen_ = false;
    code_.clear();
}

void LookupForm::choose(const QString& code) {
    chosen_ = true;
    code_ = code;
    Hide();
}

void LookupForm::showColumns(const std::vector<ListColumn>& columns) {
    List_->SetCols(static_cast<int>(columns.size()));
    int width = 2 * List_->frameWidth() + List_->style()->pixelMetric(QStyle::PM_ScrollBarExtent) +
                List_->style()->pixelMetric(QStyle::PM_ScrollView_ScrollBarSpacing);
    for (int col = 0; col < List_->Cols(); ++col) {
        const ListColumn& column = columns[static_cast<std::size_t>(col)];
        List_->SetColWidth(col, column.width);
        List_->SetColAlignment(col, column.alignment);
        if (List_->FixedRows() > 0) List_->SetTextMatrix(0, col, column.title);
        width += Twips(column.width);
    }
    List_->SetRoom({width, Twips(6000)});
}

void LookupForm::fill(const QString& sql, const std::vector<ListColumn>& columns) {
    Recordset rows = gDb->OpenRecordset(sql);
    if (rows.Eof()) return;
    showColumns(columns);
    rows.MoveLast();
    const int first = List_->FixedRows();
    List_->SetRows(rows.RecordCount() + first);
    rows.MoveFirst();
    for (int row = first; !rows.Eof(); ++row, rows.MoveNext()) {
        int col = 0;
        for (const ListColumn& column : columns)
            List_->SetTextMatrix(row, col++, CellText(rows[column.field], column.format));
    }
}

void LookupForm::empty() {
    List_->SetRows(List_->FixedRows());
    List_->Refresh();
}

void LookupForm::layOut(FieldLayout* search, QHBoxLayout* buttons) {
    auto* layout = new QVBoxLayout(this);
    auto* hint = new QHBoxLayout;
    hint->addWidget(new Label(u"クリックで決定"_s));
    hint->addStretch();
    if (search) {
        auto* fields = new QHBoxLayout;
        fields->addLayout(search->layout());
        fields->addStretch();
        layout->addLayout(fields);
        hint->addLayout(buttons);
    }
    layout->addLayout(hint);
    layout->addWidget(List_, 1);
}

void LookupForm::layOutSlips(const std::vector<ListColumn>& columns) {
    layOut(nullptr, nullptr);
    List_->SetFixedRows(1);
    showColumns(columns);
    empty();
    on(List_, &FlexGrid::Click, [this] {
        if (List_->Row() >= List_->FixedRows()) choose(List_->TextMatrix(List_->Row(), 0));
    });
}

QString LikeCondition(const QString& column, const QString& text) {
    const QString wanted = Trim(text);
    if (wanted.isEmpty()) return {};
    return u" AND "_s + column + u" LIKE '*"_s + wanted + u"*'"_s;
}

}  // namespace akarix
