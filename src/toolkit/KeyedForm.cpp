#include "toolkit/KeyedForm.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "dialogs/ShowAlert.h"
#include "platform/forms/FieldLayout.h"
#include "platform/runtime/Literals.h"
#include "store/dbAccess.h"
#include "toolkit/FieldWalk.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {

namespace {

CommandButton* Walker(const QString& caption, const QString& name) {
    constexpr int kWidth = 48;
    auto* button = &Named(new CommandButton(caption), name);
    button->setFixedWidth(kWidth);
    return button;
}

}  // namespace

KeyedForm::KeyedForm(const QString& name, const QString& caption)
    : EntryForm(name, caption), body_(new QVBoxLayout(this)), buttonRow_(new QHBoxLayout) {
    constexpr int kBetweenGroups = 16;
    body_->setSpacing(kBetweenGroups);
}

void KeyedForm::init() {
    clear();
}

void KeyedForm::addBar(const std::vector<BarButton>& buttons, QVBoxLayout* place) {
    const auto add = [this](CommandButton* button) {
        JoinWalk(*this, *button);
        buttonRow_->addWidget(button);
    };
    for (const BarButton& button : buttons)
        add(&Btn.add(button.index, new CommandButton(button.caption)));
    buttonRow_->addStretch();
    const auto addWalker = [&](const QString& arrow, const QString& name, QString KeyedForm::*sql) {
        if ((this->*sql).isEmpty()) return;
        CommandButton* button = Walker(arrow, name);
        add(button);
        on(button, &CommandButton::Click, [this, sql] { walk(this->*sql); });
    };
    addWalker(u"←"_s, u"cmdLeft"_s, &KeyedForm::left_);
    addWalker(u"→"_s, u"cmdRight"_s, &KeyedForm::right_);
    QVBoxLayout* around = place ? place : body_;
    around->addStretch();
    around->addLayout(buttonRow_);
    goRoundPast(ebox(kCode));
}

void KeyedForm::setWalk(const QString& left, const QString& right) {
    left_ = left;
    right_ = right;
}

Label& KeyedForm::addName(const QString& name) {
    Label& label = Named(new Label(QString(), this), name);
    names_[name] = &label;
    return label;
}

Label& KeyedForm::nameLabel(const QString& name) const {
    return *names_.at(name);
}

QString KeyedForm::codeText() const {
    return NumStr(NumVal(ebox(kCode).Text()));
}

void KeyedForm::clear() {
    ClearControls(*this);
    for (const auto& [name, label] : names_)
        label->SetCaption({});
    showDefaults();
    ebox(kCode).SetText(proposedCode());
    FocusSelect(ebox(kCode));
}

bool KeyedForm::refuse(const QString& message, int index) {
    ShowAlert(message);
    FocusSelect(ebox(index));
    return false;
}

void KeyedForm::walk(const QString& sql) {
    Recordset rows = gDb->OpenRecordset(sql.arg(codeText()));
    if (rows.Eof()) return clear();
    showRow(rows);
}

}  // namespace akarix
