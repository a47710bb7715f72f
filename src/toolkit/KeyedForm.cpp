#include "toolkit/KeyedForm.h"

#include <QVBoxLayout>

#include "store/dbAccess.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {

KeyedForm::KeyedForm(const QString& name, const QString& caption)
    : EntryForm(name, caption), body_(new QVBoxLayout(this)) {
    constexpr int kBetweenGroups = 16;
    body_->setSpacing(kBetweenGroups);
}

void KeyedForm::init() {
    clear();
}

void KeyedForm::addBar(std::initializer_list<BarButton> buttons, QVBoxLayout* place) {
    auto* row = new QHBoxLayout;
    addButtons(*row, buttons);
    row->addStretch();
    addWalker(*row, u"←"_s, u"cmdLeft"_s, &KeyedForm::left_);
    addWalker(*row, u"→"_s, u"cmdRight"_s, &KeyedForm::right_);
    QVBoxLayout* around = place ? place : body_;
    around->addStretch();
    around->addLayout(row);
    goRoundPast(ebox(kCode));
}

void KeyedForm::addWalker(QHBoxLayout& row, const QString& arrow, const QString& name,
                          QString KeyedForm::*sql) {
    if ((this->*sql).isEmpty()) return;
    constexpr int kWidth = 48;
    CommandButton& button = Named(newButton(arrow,
                                            [this, sql] {
                                                Recordset rows =
                                                    gDb->OpenRecordset((this->*sql).arg(codeText()));
                                                if (rows.Eof()) return clear();
                                                showRow(rows);
                                            }),
                                  name);
    button.setFixedWidth(kWidth);
    row.addWidget(&button);
}

void KeyedForm::setWalk(const QString& left, const QString& right) {
    left_ = left;
    right_ = right;
}

QString KeyedForm::codeText() const {
    return NumStr(NumVal(ebox(kCode).Text()));
}

void KeyedForm::clear() {
    emptyFields();
    showDefaults();
    ebox(kCode).SetText(proposedCode());
    FocusSelect(ebox(kCode));
}

}  // namespace akarix
