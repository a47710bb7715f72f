#include "toolkit/HelpN_frm.h"

#include "platform/runtime/Literals.h"
#include "values/NumStr.h"

namespace akarix {

namespace {

const std::vector<ListColumn> kColumns = {{u"Dno"_s, 1000, {}, u"No."_s, AlignRightCenter},
                                          {u"Hizuke"_s, 1600, {}, u"日付"_s},
                                          {u"Gaku"_s, 1600, u"#,###"_s, u"金額"_s, AlignRightCenter}};

}  // namespace

HelpN_frm::HelpN_frm() : LookupForm(u"HelpN_frm"_s) {
    layOutSlips(kColumns);
}

void HelpN_frm::Start(std::int32_t customer) {
    forgetChoice();
    empty();
    fill(
        u"SELECT * "_s + u" FROM  Dny "_s + u" WHERE Deal="_s + NumStr(customer) + u" ORDER BY Hizuke DESC"_s,
        kColumns);
}

}  // namespace akarix
