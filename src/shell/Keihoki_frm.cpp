#include "shell/Keihoki_frm.h"

#include <QVBoxLayout>

#include "platform/forms/FieldLayout.h"
#include "platform/runtime/CStr.h"
#include "platform/runtime/Format.h"
#include "store/FieldValue.h"
#include "store/PutContents.h"
#include "store/dbAccess.h"
#include "toolkit/FieldWalk.h"
#include "values/NumStr.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

namespace {

constexpr std::int32_t kFirstCode = 2;  // of the field 0; the other fee's row follows

}  // namespace

Keihoki_frm::Keihoki_frm()
    : EntryForm(QStringLiteral("Keihoki_frm"), QStringLiteral("リース料")),
      Btn_(&Named(new CommandButton(QStringLiteral("保存")), QStringLiteral("Btn"))) {
    constexpr int kFeeBytes = 5;
    auto* body = new QVBoxLayout(this);
    body->setSpacing(16);
    FieldLayout fields(*this);
    int index = 0;
    for (const auto* caption : {u"警報機リース料", u"ACUリース料"}) {
        fields.row(QString::fromUtf16(caption)).text(addBox(ebox, index++, ImeMode::Off), kFeeBytes);
    }
    JoinWalk(*this, *Btn_);
    body->addLayout(fields.layout());
    body->addWidget(Btn_, 0, Qt::AlignRight);
    wireKeys(ebox, [](int) { return true; });
    on(Btn_, &CommandButton::Click, [this] { save(); });
}

void Keihoki_frm::init() {
    Recordset rows =
        gDb->OpenRecordset(QStringLiteral("SELECT * FROM UserOP WHERE Code=2 or Code=3 ORDER BY Code"));
    // A single missing row leaves its field as it stands.
    if (rows.Eof()) ClearControls(*this);
    for (; !rows.Eof(); rows.MoveNext()) {
        const int field = longOf(rows[QStringLiteral("Code")]) - kFirstCode;
        const double fee = NumVal(NullToEmpty(rows[QStringLiteral("contents")]));
        ebox(field).SetText(Format(fee, QStringLiteral("##,###")));
    }
    FocusSelect(ebox(0));
}

void Keihoki_frm::save() {
    for (const auto& [index, box] : ebox) {
        const QString code = NumStr(kFirstCode + index);
        PutContents(QStringLiteral("SELECT * FROM UserOP WHERE Code=") + code, code,
                    CStr(NumVal(box->Text())));
    }
}

}  // namespace akarix
