#include "masters/MstRte_frm.h"

#include "toolkit/FieldBytes.h"

namespace akarix {

namespace {

MasterTexts texts() {
    return {
        .table = QStringLiteral("Rte"),
        .load = QStringLiteral("SELECT * FROM Rte  WHERE Code=%1"),
        .left = QStringLiteral("SELECT * FROM Rte WHERE Code<%1 ORDER BY Code DESC"),
        .right = QStringLiteral("SELECT * FROM Rte WHERE Code>%1 ORDER BY Code"),
        .remove = QStringLiteral("DELETE FROM Rte  WHERE Code=%1"),
        .removeQuestion = QStringLiteral("このルートを削除します。"),
    };
}

FieldTable fields() {
    return {
        {.index = 0,
         .label = QStringLiteral("コード"),
         .column = QStringLiteral("Code"),
         .kind = FieldKind::Integer,
         .bytes = kIntegerBytes,
         .lookup = FieldLookup{0, QStringLiteral("Rte"), QStringLiteral("ALL")}},
        {.index = 1,
         .label = QStringLiteral("ﾌﾘｶﾞﾅ"),
         .column = QStringLiteral("Kana"),
         .bytes = 20,
         .ime = ImeMode::KatakanaHalf},
        {.index = 2,
         .label = QStringLiteral("名前"),
         .column = QStringLiteral("Namae"),
         .bytes = 30,
         .ime = ImeMode::Hiragana},
        {.index = 3,
         .label = QStringLiteral("検針日"),
         .column = QStringLiteral("Kensin"),
         .kind = FieldKind::Integer,
         .bytes = kIntegerBytes,
         .display = Masked(QStringLiteral("##"))},
    };
}

}  // namespace

MstRte_frm::MstRte_frm() : MasterForm(QStringLiteral("MstRte_frm"), QStringLiteral("地区マスター"), texts()) {
    addFields(fields());
    addButtons();
}

}  // namespace akarix
