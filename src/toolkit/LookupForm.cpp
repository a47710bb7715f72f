#include "toolkit/LookupForm.h"

#include <QVBoxLayout>

#include "platform/runtime/Text.h"
#include "store/dbAccess.h"

namespace akarix {

namespace {

/// What is searched anywhere in its column; empty for a text without content.
QString LikeCondition(const QString& column, const QString& text) {
    const QString wanted = Trim(text);
    if (wanted.isEmpty()) return {};
    return u" AND "_s + column + u" LIKE '*"_s + wanted + u"*'"_s;
}

}  // namespace

LookupForm::LookupForm(const QString& name, int column, bool pressed)
    : EntryForm(name, u"さがす"_s), List_(&Named(new FlexGrid(this), u"List"_s)) {
    on(List_, &FlexGrid::Click, [this, column, pressed] {
        const int row = pressed ? List_->MouseRow() : List_->Row();
        if (row < List_->FixedRows() || row >= List_->Rows()) return;
        code_ = List_->TextMatrix(row, column);
        Hide();
    });
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
        buttons->setSpacing(8);
        hint->addLayout(buttons);
    }
    layout->addLayout(hint);
    layout->addWidget(List_, 1);
}

void LookupForm::addWords(FieldLayout& search) {
    search.row(u"ﾌﾘｶﾞﾅ"_s).text(addBox(0, ImeMode::KatakanaHalf), 30);
    search.row(u"名前"_s).text(addBox(1, ImeMode::Hiragana), 40);
}

QString LookupForm::readingCondition() const {
    return LikeCondition(u"Kana"_s, ebox(0).Text());
}

QString LookupForm::nameCondition() const {
    return LikeCondition(u"Namae"_s, ebox(1).Text());
}

bool LookupForm::enter(int index) {
    if (index < ebox.count() - 1) return true;
    FitMaxLength(ebox(index));
    SetFocus(&Btn(0));
    return false;
}

void LookupForm::showColumns(const GridColumns& columns) {
    constexpr int kHeight = 400;
    constexpr int kBar = 16;  // without a pixel to spare: a pick list stands beside what it is asked for
    columns_ = columns;
    SetColumns(*List_, columns_);
    ReserveRoom(*List_, kHeight, kBar);
}

void LookupForm::begin() {
    code_.clear();
    emptyFields();
    if (ebox.count() > 0) SetFocus(&ebox(0));
}

void LookupForm::clear() {
    emptyFields();
    emptyList();
}

void LookupForm::emptyList() {
    List_->SetRows(List_->FixedRows());
    List_->Refresh();
}

void LookupForm::fill(const QString& sql) {
    Recordset rows = gDb->OpenRecordset(sql);
    FillGrid(*List_, columns_, rows);
}

}  // namespace akarix
