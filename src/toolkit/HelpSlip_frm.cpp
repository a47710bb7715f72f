#include "toolkit/HelpSlip_frm.h"

#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

const std::vector<ListColumn> kColumns = {{u"Dno"_s, 1000, {}, u"No."_s, AlignRightCenter},
                                          {u"fHizuke"_s, 1600, {}, u"日付"_s},
                                          {u"fNamae"_s, 3200, {}, u"得意先"_s},
                                          {u"fHinNamae"_s, 3600, {}, u"品名(1行目)"_s},
                                          {u"Gaku"_s, 1600, u"###,###"_s, u"金額"_s, AlignRightCenter}};

}  // namespace

HelpSlip_frm::HelpSlip_frm() : LookupForm(u"HelpSlip_frm"_s) {
    layOutSlips(kColumns);
}

void HelpSlip_frm::Start() {
    forgetChoice();
    empty();
    fill(
        u"SELECT Dno, FIRST(Hizuke) as fHizuke, FIRST(Deal.Namae) as fNamae ,"
        "  FIRST(Dud.HinNamae) as fHinNamae, SUM(Dud.Gaku) as Gaku "_s +
            u" FROM  Dud INNER JOIN Deal ON Dud.Deal = Deal.Code "_s + u" GROUP BY Dud.Dno "_s +
            u" ORDER BY Dud.Dno DESC"_s,
        kColumns);
}

}  // namespace akarix
