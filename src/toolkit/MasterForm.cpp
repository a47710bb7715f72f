#include "toolkit/MasterForm.h"

#include <QVBoxLayout>

#include "dialogs/AskConfirm.h"
#include "platform/forms/Notice.h"
#include "platform/runtime/Conversion.h"
#include "store/Lookup.h"
#include "store/dbAccess.h"
#include "toolkit/Lookups.h"
#include "values/NumStr.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

namespace {

Variant StoredValue(const MasterField& field, const QString& text) {
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

QString ShownText(const MasterField& field, const Variant& value) {
    const Variant known = field.kind == FieldKind::Text ? Variant(NullToEmpty(value)) : NullToZero(value);
    return field.display ? field.display(known) : NullToEmpty(known);
}

}  // namespace

MasterForm::MasterForm(const QString& name, const QString& caption, MasterTexts texts)
    : KeyedForm(name, caption), rows_(*this) {
    setTexts(std::move(texts));
    body().addLayout(rows_.layout());
}

void MasterForm::setTexts(MasterTexts texts) {
    texts_ = std::move(texts);
    setWalk(texts_.left, texts_.right);
}

// ---- layout

void MasterForm::addFields(const FieldTable& fields) {
    fields_ = fields;
    for (const MasterField& field : fields_)
        addField(field);
}

void MasterForm::addField(const MasterField& field) {
    if (field.newColumn) rows_.nextColumn();
    FieldLine row = rows_.row(field.label);
    if (field.lookup && !field.lookup->nameLabel.isEmpty())
        addCode(row, field.index, *field.lookup, field.bytes, field.shownBytes);
    else
        row.text(addBox(field.index, field.ime), field.bytes, field.shownBytes);
    if (field.index == kCode && field.lookup)
        row.lookup(addLookup(
            field.lookup->picture, [this] { return PickCode(texts_.table); }, kCode));
    if (!field.note.isEmpty()) row.note(field.note);
}

void MasterForm::addButtons() {
    // Save comes first in the walk: Enter in the last field and Enter again store the row.
    addBar({{2, u"保存"_s, [this] { save(); }, Keeps},
            {0, u"画面クリア"_s, [this] { clear(); }},
            {1, u"削除"_s, [this] { remove(); }, Removes}});
}

// ---- the row on the screen

bool MasterForm::enter(int index) {
    if (index == kCode) load();
    return true;
}

QString MasterForm::proposedCode() {
    return NumStr(NextCode(texts_.table));
}

void MasterForm::keepUnknownCode(const QString& typed) {
    ebox(kCode).SetText(typed);
}

void MasterForm::load() {
    Recordset row = gDb->OpenRecordset(texts_.load.arg(codeText()));
    if (!row.Eof()) return showRow(row);
    const QString typed = ebox(kCode).Text();
    clear();
    keepUnknownCode(typed);
}

void MasterForm::showRow(Recordset& row) {
    for (const MasterField& field : fields_) {
        if (field.column.isEmpty()) continue;
        ebox(field.index).SetText(ShownText(field, row[field.column]));
        if (field.lookup && !field.lookup->nameLabel.isEmpty()) showName(field.index);
    }
    showExtras(row);
}

// ---- the row in the store

bool MasterForm::require(int index, const QString& message) {
    return HasText(ebox(index).Text()) || refuse(message, index);
}

bool MasterForm::maySave() {
    return NumVal(ebox(kCode).Text()) != 0.0 || refuse(u"コード番号は不正です。"_s, kCode);
}

void MasterForm::save() {
    if (!maySave()) return;
    Recordset row = gDb->OpenRecordset(texts_.load.arg(codeText()));
    const bool isNew = row.Eof();
    if (isNew)
        row.AddNew();
    else
        row.Edit();
    for (const MasterField& field : fields_) {
        const bool isKey = field.index == kCode;
        if (field.column.isEmpty() || (isKey && !isNew)) continue;
        row.Fields(field.column) = StoredValue(field, ebox(field.index).Text());
    }
    storeExtras(row);
    row.Update();
    clear();
    NoticeSaved();
}

QString MasterForm::removeSql() {
    return texts_.remove.arg(codeText());
}

void MasterForm::remove() {
    if (!mayAskToRemove()) return;
    if (!AskConfirm(texts_.removeQuestion, u"はい"_s, u"いいえ"_s)) return;
    if (!mayRemove()) return;
    gDb->Execute(removeSql());
    clear();
}

}  // namespace akarix
