#include "masters/MstRte_frm.h"

namespace akarix {

namespace {

MasterTexts Texts() {
    return {
        .table = u"Rte"_s,
        .load = u"SELECT * FROM Rte  WHERE Code=%1"_s,
        .left = u"SELECT * FROM Rte WHERE Code<%1 ORDER BY Code DESC"_s,
        .right = u"SELECT * FROM Rte WHERE Code>%1 ORDER BY Code"_s,
        .remove = u"DELETE FROM Rte  WHERE Code=%1"_s,
        .removeQuestion = u"このルートを削除します。"_s,
    };
}

FieldTable Fields() {
    return {
        {.index = 0,
         .label = u"コード"_s,
         .column = u"Code"_s,
         .kind = FieldKind::Integer,
         .bytes = kIntegerBytes,
         .lookup = CodeLookup{}},
        {.index = 1, .label = u"ﾌﾘｶﾞﾅ"_s, .column = u"Kana"_s, .bytes = 20, .ime = ImeMode::KatakanaHalf},
        {.index = 2, .label = u"名前"_s, .column = u"Namae"_s, .bytes = 30, .ime = ImeMode::Hiragana},
        {.index = 3,
         .label = u"検針日"_s,
         .column = u"Kensin"_s,
         .kind = FieldKind::Integer,
         .bytes = kIntegerBytes,
         .display = Masked(u"##"_s)},
    };
}

}  // namespace

MstRte_frm::MstRte_frm() : MasterForm(u"MstRte_frm"_s, u"地区マスター"_s, Texts()) {
    addFields(Fields());
    addButtons();
}

}  // namespace akarix
