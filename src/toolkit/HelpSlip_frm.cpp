#include "toolkit/HelpSlip_frm.h"

namespace akarix {

namespace {

const std::vector<ListColumn> kColumns = {
    {QStringLiteral("Dno"), 1000, {}, QStringLiteral("No."), AlignRightCenter},
    {QStringLiteral("fHizuke"), 1600, {}, QStringLiteral("日付")},
    {QStringLiteral("fNamae"), 3200, {}, QStringLiteral("得意先")},
    {QStringLiteral("fHinNamae"), 3600, {}, QStringLiteral("品名(1行目)")},
    {QStringLiteral("Gaku"), 1600, QStringLiteral("###,###"), QStringLiteral("金額"), AlignRightCenter}};

}  // namespace

HelpSlip_frm::HelpSlip_frm() : LookupForm(QStringLiteral("HelpSlip_frm")) {
    layOutSlips(kColumns);
}

void HelpSlip_frm::Start() {
    forgetChoice();
    empty();
    fill(QStringLiteral("SELECT Dno, FIRST(Hizuke) as fHizuke, FIRST(Deal.Namae) as fNamae ,"
                        "  FIRST(Dud.HinNamae) as fHinNamae, SUM(Dud.Gaku) as Gaku ") +
             QStringLiteral(" FROM  Dud INNER JOIN Deal ON Dud.Deal = Deal.Code ") +
             QStringLiteral(" GROUP BY Dud.Dno ") + QStringLiteral(" ORDER BY Dud.Dno DESC"),
         kColumns);
}

}  // namespace akarix
