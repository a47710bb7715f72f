#include "toolkit/Lookups.h"

#include "toolkit/HelpDeal_frm.h"
#include "toolkit/Help_frm.h"
#include "values/NumStr.h"

namespace akarix {

namespace {

const GridColumns kPayments = {{u"No.", 1000, AlignRightCenter, u"Dno"},
                               {u"日付", 1600, AlignLeftCenter, u"Hizuke"},
                               {u"金額", 1600, AlignRightCenter, u"Gaku", Masked(u"#,###"_s)}};
const GridColumns kSlips = {{u"No.", 1000, AlignRightCenter, u"Dno"},
                            {u"日付", 1600, AlignLeftCenter, u"fHizuke"},
                            {u"得意先", 3200, AlignLeftCenter, u"fNamae"},
                            {u"品名(1行目)", 3600, AlignLeftCenter, u"fHinNamae"},
                            {u"金額", 1600, AlignRightCenter, u"Gaku", Masked(u"###,###"_s)}};

/// A list without a search.
class SlipList : public LookupForm {
 public:
    void Start(const QString& sql) {
        begin();
        emptyList();
        fill(sql);
    }

 protected:
    SlipList(const QString& name, const GridColumns& columns) : LookupForm(name) {
        layOut();
        showColumns(columns);
    }
};

/// A customer's payment slips, the latest first.
class HelpN_frm : public SlipList {
 public:
    HelpN_frm() : SlipList(u"HelpN_frm"_s, kPayments) {}
};

/// All sales slips, the newest first; one row a slip.
class HelpSlip_frm : public SlipList {
 public:
    HelpSlip_frm() : SlipList(u"HelpSlip_frm"_s, kSlips) {}
};

/// The instance is asked anew after the showing: the close box has taken the one that was shown away.
template <class Dialog, class... Arguments>
QString Pick(const Arguments&... arguments) {
    Form::Instance<Dialog>().Start(arguments...);
    Form::Instance<Dialog>().ShowModal();
    return Form::Instance<Dialog>().Code();
}

}  // namespace

QString PickCode(const QString& table) {
    return table == u"Deal" ? Pick<HelpDeal_frm>() : Pick<Help_frm>(table);
}

QString PickPayment(std::int32_t customer) {
    return Pick<HelpN_frm>(u"SELECT * FROM  Dny  WHERE Deal="_s + NumStr(customer) +
                           u" ORDER BY Hizuke DESC"_s);
}

QString PickSlip() {
    return Pick<HelpSlip_frm>(
        u"SELECT Dno, FIRST(Hizuke) as fHizuke, FIRST(Deal.Namae) as fNamae ,"
        "  FIRST(Dud.HinNamae) as fHinNamae, SUM(Dud.Gaku) as Gaku "
        " FROM  Dud INNER JOIN Deal ON Dud.Deal = Deal.Code  GROUP BY Dud.Dno "
        " ORDER BY Dud.Dno DESC"_s);
}

}  // namespace akarix
