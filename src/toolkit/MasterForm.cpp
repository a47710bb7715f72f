#include "toolkit/MasterForm.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "dialogs/AskConfirm.h"
#include "dialogs/ShowAlert.h"
#include "platform/runtime/CInt.h"
#include "platform/runtime/CLng.h"
#include "store/Lookup.h"
#include "store/dbAccess.h"
#include "toolkit/FieldWalk.h"
#include "values/NumStr.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

namespace {

constexpr int kCode = 0;
constexpr int kNameBytes = 30;

Variant storedValue(const MasterField& field, const QString& text) {
    switch (field.kind) {
        case FieldKind::Long:
            return CLng(NumVal(text));
        case FieldKind::Integer:
            return CInt(NumVal(text));
        case FieldKind::Currency:
            return ToCurrency(text);
        case FieldKind::Text:
            break;
    }
    return EmptyToBlank(field.bytes > 0 ? CutBytes(text, field.bytes) : text);
}

QString shownText(const MasterField& field, const Variant& value) {
    const Variant known = field.kind == FieldKind::Text ? Variant(NullToEmpty(value)) : NullToZero(value);
    return field.display ? field.display(known) : NullToEmpty(known);
}

}  // namespace

MasterForm::MasterForm(const QString& name, const QString& caption, MasterTexts texts)
    : EntryForm(name, caption),
      texts_(std::move(texts)),
      body_(new QVBoxLayout(this)),
      rows_(*this),
      buttonRow_(new QHBoxLayout),
      cmdLeft_(&Named(new CommandButton(QStringLiteral("←")), QStringLiteral("cmdLeft"))),
      cmdRight_(&Named(new CommandButton(QStringLiteral("→")), QStringLiteral("cmdRight"))) {
    constexpr int kWalkerWidth = 48;
    cmdLeft_->setFixedWidth(kWalkerWidth);
    cmdRight_->setFixedWidth(kWalkerWidth);
    body_->setSpacing(16);
    body_->addLayout(rows_.layout());
}

void MasterForm::init() {
    clear();
}

// ---- layout

void MasterForm::addFields(const FieldTable& fields) {
    fields_ = fields;
    for (const MasterField& field : fields_) {
        addField(field);
    }
}

void MasterForm::addField(const MasterField& field) {
    if (field.newColumn) rows_.nextColumn();
    FieldLine row = rows_.row(field.label);
    row.text(addBox(ebox, field.index, field.ime), field.bytes);
    if (field.lookup) row.lookup(F6.add(field.lookup->picture, new Image));
    if (!field.nameLabel.isEmpty()) {
        row.name(addName(field.nameLabel), kNameBytes);
    }
    if (!field.note.isEmpty()) row.note(field.note);
}

void MasterForm::addButtons() {
    // Save comes first in the walk: Enter in the last field and Enter again store the row.
    for (CommandButton* button :
         {&Btn.add(2, new CommandButton(QStringLiteral("保存"))),
          &Btn.add(0, new CommandButton(QStringLiteral("画面クリア"))),
          &Btn.add(1, new CommandButton(QStringLiteral("削除"))), cmdLeft_, cmdRight_}) {
        if (button == cmdLeft_) buttonRow_->addStretch();
        JoinWalk(*this, *button);
        buttonRow_->addWidget(button);
    }
    body_->addStretch();
    body_->addLayout(buttonRow_);
    wire();
}

Label& MasterForm::addName(const QString& name) {
    Label& label = Named(new Label(QString(), this), name);
    names_[name] = &label;
    return label;
}

Label& MasterForm::nameLabel(const QString& name) const {
    return *names_.at(name);
}

void MasterForm::wire() {
    press_ = wireKeys(ebox, [this](int index) { return enter(index); });
    for (const MasterField& field : fields_) {
        if (!field.lookup) continue;
        wireLookup(F6(field.lookup->picture), field.lookup->table, field.lookup->mode, ebox(field.index),
                   press_, field.index);
    }
    on(&Btn(0), &CommandButton::Click, [this] { clear(); });
    on(&Btn(1), &CommandButton::Click, [this] { remove(); });
    on(&Btn(2), &CommandButton::Click, [this] { save(); });
    on(cmdLeft_, &CommandButton::Click, [this] { walk(texts_.left); });
    on(cmdRight_, &CommandButton::Click, [this] { walk(texts_.right); });
}

// ---- the row on the screen

QString MasterForm::codeText() const {
    return NumStr(NumVal(ebox(kCode).Text()));
}

bool MasterForm::enter(int index) {
    if (index == kCode) load();
    for (const MasterField& field : fields_) {
        if (field.index == index) showName(field);
    }
    return true;
}

void MasterForm::clear() {
    ClearControls(*this);
    for (const auto& [name, label] : names_) {
        label->SetCaption({});
    }
    showDefaults();
    ebox(kCode).SetText(proposedCode());
    FocusSelect(ebox(kCode));
}

QString MasterForm::proposedCode() {
    return NumStr(NextCode(texts_.table));
}

void MasterForm::keepUnknownCode(const QString& typed) {
    ebox(kCode).SetText(typed);
}

void MasterForm::load() {
    Recordset row = gDb->OpenRecordset(texts_.load.arg(codeText()));
    if (!row.Eof()) return show(row);
    const QString typed = ebox(kCode).Text();
    clear();
    keepUnknownCode(typed);
}

void MasterForm::show(Recordset& row) {
    for (const MasterField& field : fields_) {
        if (field.column.isEmpty()) continue;
        ebox(field.index).SetText(shownText(field, row[field.column]));
        showName(field);
    }
    showExtras(row);
}

void MasterForm::showName(const MasterField& field) {
    if (field.nameOf) nameLabel(field.nameLabel).SetCaption(field.nameOf(NumVal(ebox(field.index).Text())));
}

void MasterForm::walk(const QString& sql) {
    Recordset rows = gDb->OpenRecordset(sql.arg(codeText()));
    if (rows.Eof()) return clear();
    show(rows);
}

// ---- the row in the store

bool MasterForm::require(int index, const QString& message) {
    if (HasText(ebox(index).Text())) return true;
    ShowAlert(message);
    FocusSelect(ebox(index));
    return false;
}

bool MasterForm::maySave() {
    if (NumVal(ebox(kCode).Text()) != 0.0) return true;
    ShowAlert(QStringLiteral("コード番号は不正です。"));
    FocusSelect(ebox(kCode));
    return false;
}

void MasterForm::save() {
    if (!maySave()) return;
    Recordset row = gDb->OpenRecordset(texts_.load.arg(codeText()));
    const bool isNew = row.Eof();
    if (isNew) {
        row.AddNew();
    } else {
        row.Edit();
    }
    for (const MasterField& field : fields_) {
        const bool isKey = field.index == kCode;
        if (field.column.isEmpty() || (isKey && !isNew)) continue;
        row.Fields(field.column) = storedValue(field, ebox(field.index).Text());
    }
    storeExtras(row);
    row.Update();
    clear();
}

QString MasterForm::removeSql() {
    return texts_.remove.arg(codeText());
}

void MasterForm::remove() {
    if (!mayAskToRemove()) return;
    if (!AskConfirm(texts_.removeQuestion, QStringLiteral("はい"), QStringLiteral("いいえ"))) return;
    if (!mayRemove()) return;
    gDb->Execute(removeSql());
    clear();
}

}  // namespace akarix
