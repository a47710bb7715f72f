#include "toolkit/HelpDeal_frm.h"

#include "platform/runtime/Text.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {

namespace {

const GridColumns kColumns = {{u"順路", 800, AlignRightCenter, u"Haisou"},
                              {u"ｺｰﾄﾞ", 800, AlignRightCenter, u"Code"},
                              {u"得意先", 3600, AlignLeftCenter, u"namae"},
                              {u"ﾌﾘｶﾞﾅ", 2600, AlignLeftCenter, u"kana"},
                              {u"TEL", 1600, AlignLeftCenter, u"Tel"}};
constexpr int kCodeColumn = 1;
constexpr int kRoute = 2;

}  // namespace

HelpDeal_frm::HelpDeal_frm() : LookupForm(u"HelpDeal_frm"_s, kCodeColumn, true) {
    FieldLayout words(*this);
    addWords(words);
    addCode(words.row(u"地区"_s), kRoute, {0, u"Rte"_s, u"sRte"_s}, kIntegerBytes);
    QHBoxLayout* buttons = buttonBar({{0, u"さがす"_s, [this] { search(); }}});
    buttons->addWidget(&Named(newButton(u"クリア"_s, [this] { clear(); }), u"Command1"_s));
    layOut(&words, buttons);
    showColumns(kColumns);
}

void HelpDeal_frm::search() {
    emptyList();
    const QString route = Trim(ebox(kRoute).Text());
    fill(u"SELECT Haisou,Code,namae,kana,Tel  FROM  Deal  WHERE Code>0"_s + wordConditions() +
         (route.isEmpty() ? QString() : u" AND Rte="_s + NumStr(NumVal(route))) +
         u" ORDER BY Rte,haisou,Code"_s);
}

}  // namespace akarix
