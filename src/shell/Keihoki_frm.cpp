#include "shell/Keihoki_frm.h"

#include <QVBoxLayout>

#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"
#include "store/FieldValue.h"
#include "store/PutContents.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

namespace {

constexpr std::int32_t kFirstCode = 2;  // of the field 0; the other fee's row follows

}  // namespace

Keihoki_frm::Keihoki_frm() : EntryForm(u"Keihoki_frm"_s, u"リース料"_s) {
    constexpr int kFeeBytes = 5;
    auto* body = new QVBoxLayout(this);
    body->setSpacing(16);
    FieldLayout fields(*this);
    int index = 0;
    for (const auto* caption : {u"警報機リース料", u"ACUリース料"})
        fields.row(QString::fromUtf16(caption)).text(addBox(index++), kFeeBytes);
    body->addLayout(fields.layout());
    auto* button = newButton(
        u"保存"_s, [this] { save(); }, Keeps);
    body->addWidget(&Named(button, u"Btn"_s), 0, Qt::AlignRight);
}

void Keihoki_frm::init() {
    Recordset rows = gDb->OpenRecordset(u"SELECT * FROM UserOP WHERE Code=2 or Code=3 ORDER BY Code"_s);
    // A single missing row leaves its field as it stands.
    if (rows.Eof()) emptyFields();
    for (; !rows.Eof(); rows.MoveNext()) {
        const int field = LongOf(rows[u"Code"_s]) - kFirstCode;
        const double fee = NumVal(NullToEmpty(rows[u"contents"_s]));
        ebox(field).SetText(Format(fee, u"##,###"_s));
    }
    FocusSelect(ebox(0));
}

void Keihoki_frm::save() {
    for (const auto& [index, box] : ebox) {
        const QString code = NumStr(kFirstCode + index);
        PutContents(u"SELECT * FROM UserOP WHERE Code="_s + code, code, CStr(NumVal(box->Text())));
    }
}

}  // namespace akarix
