#include "toolkit/Help_frm.h"

#include "platform/runtime/Literals.h"
#include "toolkit/FieldWalk.h"

namespace akarix {

namespace {

const std::vector<ListColumn> kGoods = {{u"Code"_s, 800, {}, {}, AlignRightCenter},
                                        {u"Namae"_s, 4000, {}, {}}};
const std::vector<ListColumn> kBanks = {{u"Code"_s, 800, u"0000"_s, {}, AlignRightCenter},
                                        {u"Stn"_s, 800, u"000"_s, {}, AlignRightCenter},
                                        {u"BkName"_s, 2000, {}, {}}};
const std::vector<ListColumn> kOthers = {{u"Code"_s, 800, {}, {}, AlignRightCenter},
                                         {u"Namae"_s, 7000, {}, {}}};

}  // namespace

Help_frm::Help_frm() : LookupForm(u"Help_frm"_s) {
    FieldLayout search(*this);
    search.row(u"ﾌﾘｶﾞﾅ"_s).text(addBox(ebox, 0, ImeMode::KatakanaHalf), 30);
    search.row(u"名前"_s).text(addBox(ebox, 1, ImeMode::Hiragana), 40);
    layOut(&search, ButtonBar(*this, Btn, {u"さがす"_s, u"クリア"_s}));
    List().SetFixedRows(0);
    List().SetRows(0);

    wireKeys(
        ebox, [this](int index) { return enter(index); });
    on(&Btn(0), &CommandButton::Click, [this] { this->search(); });
    on(
        &Btn(1), &CommandButton::Click,
        [this] {
            ClearControls(*this);
            empty();
        });
    on(&List(), &FlexGrid::Click, [this] {
        if (List().Rows() > 0) choose(List().TextMatrix(List().Row(), 0));
    });
}

void Help_frm::Start(const QString& table, const QString& mode) {
    table_ = table;
    mode_ = mode;
    ClearControls(*this);
    SetFocus(&ebox(0));
    forgetChoice();
    sql_ = listSql();
    fill(sql_, columns());
}

bool Help_frm::enter(int index) {
    if (index == 0) return true;
    FitMaxLength(ebox(index));
    SetFocus(&Btn(0));
    return false;
}

void Help_frm::search() {
    sql_ = searchSql();
    fill(sql_, columns());
}

const std::vector<ListColumn>& Help_frm::columns() const {
    if (table_ == u"Hin") return kGoods;
    if (table_ == u"Bnk") return kBanks;
    return kOthers;
}

QString Help_frm::listSql() const {
    if (table_ == u"Hin") return u"SELECT Code,Namae FROM Hin ORDER BY Kana"_s;
    if (table_ == u"Bnk") return u"SELECT Code,Stn,BkName From Bnk ORDER BY Code,Stn"_s;
    return u"SELECT Code,Namae FROM "_s + table_ + u" ORDER BY Kana"_s;
}

// A bank has neither reading nor name, so a search among banks fails in the store; only their list serves.
QString Help_frm::searchSql() const {
    const QString reading = LikeCondition(u"Kana"_s, ebox(0).Text());
    const QString name = LikeCondition(u"Namae"_s, ebox(1).Text());
    QString order;
    if (reading.isEmpty() && name.isEmpty())
        order = u" ORDER BY Code"_s;
    else if (name.isEmpty())
        order = u" ORDER BY Kana,Code"_s;
    else if (reading.isEmpty())
        order = u" ORDER BY Namae,Code"_s;
    const QString select =
        table_ == u"Hin" ? u"SELECT Code,Namae FROM Hin "_s : u"SELECT Code,Namae FROM "_s + table_;
    return select + u" WHERE Code>0"_s + reading + name + order;
}

}  // namespace akarix
