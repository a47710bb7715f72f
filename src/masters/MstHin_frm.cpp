#include "masters/MstHin_frm.h"

#include "toolkit/FieldBytes.h"

namespace akarix {

namespace {

constexpr int kName = 2;

MasterTexts texts() {
    return {
        .table = QStringLiteral("Hin"),
        .load = QStringLiteral("SELECT * FROM Hin  WHERE Code=%1"),
        .left = QStringLiteral("SELECT * FROM Hin WHERE Code<%1 ORDER BY Code DESC"),
        .right = QStringLiteral("SELECT * FROM Hin WHERE Code>%1 ORDER BY Code"),
        .remove = QStringLiteral("DELETE FROM Hin  WHERE Code=%1"),
        .removeQuestion = QStringLiteral("この商品を削除します。"),
    };
}

FieldTable fields() {
    return {
        {.index = 0,
         .label = QStringLiteral("コード"),
         .column = QStringLiteral("Code"),
         .kind = FieldKind::Long,
         .bytes = kLongKeyBytes,
         .lookup = FieldLookup{0, QStringLiteral("Hin"), QStringLiteral("ALL")}},
        {.index = 1,
         .label = QStringLiteral("ﾌﾘｶﾞﾅ"),
         .column = QStringLiteral("Kana"),
         .bytes = 30,
         .ime = ImeMode::KatakanaHalf},
        {.index = kName,
         .label = QStringLiteral("名前"),
         .column = QStringLiteral("Namae"),
         .bytes = 40,
         .ime = ImeMode::Hiragana},
        {.index = 3,
         .label = QStringLiteral("単価"),
         .column = QStringLiteral("Tanka"),
         .kind = FieldKind::Currency,
         .bytes = kCurrencyBytes,
         .shownBytes = kCurrencyShown,
         .display = Masked(QStringLiteral("###,###"))},
    };
}

}  // namespace

MstHin_frm::MstHin_frm() : MasterForm(QStringLiteral("MstHin_frm"), QStringLiteral("商品マスター"), texts()) {
    addFields(fields());
    addButtons();
}

bool MstHin_frm::maySave() {
    return MasterForm::maySave() && require(kName, QStringLiteral("商品名を入れて下さい。"));
}

}  // namespace akarix
