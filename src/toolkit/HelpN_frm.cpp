#include "toolkit/HelpN_frm.h"

#include "values/NumStr.h"

namespace akarix {

namespace {

const std::vector<ListColumn> kColumns = {
    {QStringLiteral("Dno"), 1000, {}, QStringLiteral("No."), AlignRightCenter},
    {QStringLiteral("Hizuke"), 1600, {}, QStringLiteral("日付")},
    {QStringLiteral("Gaku"), 1600, QStringLiteral("#,###"), QStringLiteral("金額"), AlignRightCenter}};

}  // namespace

HelpN_frm::HelpN_frm() : LookupForm(QStringLiteral("HelpN_frm")) {
    layOutSlips(kColumns);
}

void HelpN_frm::Start(std::int32_t customer) {
    forgetChoice();
    empty();
    fill(QStringLiteral("SELECT * ") + QStringLiteral(" FROM  Dny ") + QStringLiteral(" WHERE Deal=") +
             NumStr(customer) + QStringLiteral(" ORDER BY Hizuke DESC"),
         kColumns);
}

}  // namespace akarix
