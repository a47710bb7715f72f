#include "shell/SysFunc_frm.h"

#include <QVBoxLayout>

#include "platform/forms/Notice.h"
#include "store/PutContents.h"
#include "store/dbAccess.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

namespace {

enum Field { kCode, kContents };

}  // namespace

SysFunc_frm::SysFunc_frm() : EntryForm(u"SysFunc_frm"_s, u"System Function"_s) {
    constexpr int kCodeBytes = 10;
    constexpr int kContentsBytes = 255;
    constexpr int kShownBytes = 40;
    auto* body = new QVBoxLayout(this);
    body->setSpacing(16);
    FieldLayout fields(*this);
    fields.row(u"コード"_s).text(addBox(kCode), kCodeBytes);
    fields.row({}).text(addBox(kContents, ImeMode::NoControl), kContentsBytes, kShownBytes);
    body->addLayout(fields.layout());
    auto* button = newButton(
        u"OK"_s, [this] { save(); }, Confirms);
    body->addWidget(&Named(button, u"Btn"_s), 0, Qt::AlignRight);
}

void SysFunc_frm::init() {
    emptyFields();
    FocusSelect(ebox(kCode));
}

bool SysFunc_frm::enter(int index) {
    if (index == kContents) {
        save();
        return false;
    }
    load();
    return true;
}

QString SysFunc_frm::question() const {
    return u"SELECT * FROM zSysFunc  WHERE Code="_s + KeepNumeric(ebox(kCode).Text());
}

void SysFunc_frm::load() {
    Recordset row = gDb->OpenRecordset(question());
    ebox(kContents).SetText(row.Eof() ? QString() : NullToEmpty(row[u"contents"_s]));
}

void SysFunc_frm::save() {
    FitMaxLength(ebox(kContents));
    PutContents(question(), ebox(kCode).Text(), ebox(kContents).Text());
    init();
    NoticeSaved();
}

}  // namespace akarix
