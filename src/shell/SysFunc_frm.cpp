#include "shell/SysFunc_frm.h"

#include <QVBoxLayout>

#include "platform/forms/FieldLayout.h"
#include "platform/forms/Notice.h"
#include "platform/runtime/Literals.h"
#include "store/PutContents.h"
#include "store/dbAccess.h"
#include "toolkit/FieldWalk.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

namespace {

enum Field { kCode, kContents };

}  // namespace

SysFunc_frm::SysFunc_frm()
    : EntryForm(u"SysFunc_frm"_s, u"System Function"_s), Btn_(&Named(new CommandButton(u"OK"_s), u"Btn"_s)) {
    constexpr int kCodeBytes = 10;
    constexpr int kContentsBytes = 255;
    constexpr int kShownBytes = 40;
    auto* body = new QVBoxLayout(this);
    body->setSpacing(16);
    FieldLayout fields(*this);
    fields.row(u"コード"_s).text(addBox(ebox, kCode, ImeMode::Off), kCodeBytes);
    fields.row({}).text(addBox(ebox, kContents, ImeMode::NoControl), kContentsBytes, kShownBytes);
    JoinWalk(*this, *Btn_);
    body->addLayout(fields.layout());
    body->addWidget(Btn_, 0, Qt::AlignRight);
    wireKeys(
        ebox, [this](int index) { return enter(index); });
    on(Btn_, &CommandButton::Click, [this] { save(); });
}

void SysFunc_frm::init() {
    ClearControls(*this);
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
