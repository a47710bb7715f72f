#include "masters/MstHin_frm.h"

namespace akarix {

namespace {

constexpr int kName = 2;

MasterTexts Texts() {
    return {
        .table = u"Hin"_s,
        .load = u"SELECT * FROM Hin  WHERE Code=%1"_s,
        .left = u"SELECT * FROM Hin WHERE Code<%1 ORDER BY Code DESC"_s,
        .right = u"SELECT * FROM Hin WHERE Code>%1 ORDER BY Code"_s,
        .remove = u"DELETE FROM Hin  WHERE Code=%1"_s,
        .removeQuestion = u"この商品を削除します。"_s,
    };
}

FieldTable Fields() {
    return {
        {.index = 0,
         .label = u"コード"_s,
         .column = u"Code"_s,
         .kind = FieldKind::Long,
         .bytes = kLongKeyBytes,
         .lookup = CodeLookup{}},
        {.index = 1, .label = u"ﾌﾘｶﾞﾅ"_s, .column = u"Kana"_s, .bytes = 30, .ime = ImeMode::KatakanaHalf},
        {.index = kName, .label = u"名前"_s, .column = u"Namae"_s, .bytes = 40, .ime = ImeMode::Hiragana},
        {.index = 3,
         .label = u"単価"_s,
         .column = u"Tanka"_s,
         .kind = FieldKind::Currency,
         .bytes = kCurrencyBytes,
         .shownBytes = kCurrencyShown,
         .display = Masked(u"###,###"_s)},
    };
}

}  // namespace

MstHin_frm::MstHin_frm() : MasterForm(u"MstHin_frm"_s, u"商品マスター"_s, Texts()) {
    addFields(Fields());
    addButtons();
}

bool MstHin_frm::maySave() {
    return MasterForm::maySave() && require(kName, u"商品名を入れて下さい。"_s);
}

}  // namespace akarix
