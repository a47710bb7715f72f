#include "masters/ms_frm.h"

#include <array>

#include "store/Lookup.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {

namespace {

constexpr int kName = 2;
constexpr int kShortName = 3;

constexpr std::array<std::pair<const char16_t*, const char16_t*>, 5> kCaptions{{{u"Dbn", u"取引先分類"},
                                                                                {u"Kko", u"加工方法"},
                                                                                {u"DyJkn", u"染色条件"},
                                                                                {u"Col", u"色"},
                                                                                {u"Shk", u"出荷形態"}}};

QString CaptionOf(const QString& table) {
    for (const auto& [name, caption] : kCaptions)
        if (table == QString::fromUtf16(name)) return QString::fromUtf16(caption);
    return table;
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
        {.index = kShortName,
         .label = u"略称"_s,
         .column = u"Ryaku"_s,
         .bytes = 20,
         .ime = ImeMode::Hiragana},
    };
}

}  // namespace

ms_frm::ms_frm() : MasterForm(u"ms_frm"_s, {}, {}) {
    addFields(Fields());
    addButtons();
}

void ms_frm::init(const QString& table) {
    table_ = table;
    SetCaption(CaptionOf(table));
    setTexts({.table = table,
              .load = u"SELECT * FROM "_s + table + u" WHERE Code=%1"_s,
              .left = {},
              .right = {},
              .remove = u"DELETE FROM "_s + table + u" WHERE Code=%1"_s,
              .removeQuestion = u"このコードを削除します。"_s});
    clear();
}

bool ms_frm::enter(int index) {
    if (index == kShortName) {
        save();
        return false;
    }
    if (index == kName) CopyIfEmpty(ebox(kName), ebox(kShortName));
    return MasterForm::enter(index);
}

// The figures as typed: what is no plain number finds no row, rather than that of its first part.
QString ms_frm::codeText() const {
    return KeepNumeric(ebox(kCode).Text());
}

QString ms_frm::proposedCode() {
    return NumStr(HighestPlus(u"SELECT TOP 1 Code FROM "_s + table_ + u" ORDER BY Code DESC"_s, 1));
}

// A code without a row gives way to the next free one.
void ms_frm::keepUnknownCode(const QString& /*typed*/) {}

bool ms_frm::maySave() {
    return NumVal(ebox(kCode).Text()) != 0.0 || refuse(u"コードが記述されていません。"_s, kCode);
}

}  // namespace akarix
