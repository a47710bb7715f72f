#include "toolkit/Help_frm.h"

#include "toolkit/FieldWalk.h"

namespace akarix {

namespace {

const std::vector<ListColumn> kGoods = {{QStringLiteral("Code"), 800, {}, {}, AlignRightCenter},
                                        {QStringLiteral("Namae"), 4000, {}, {}}};
const std::vector<ListColumn> kBanks = {
    {QStringLiteral("Code"), 800, QStringLiteral("0000"), {}, AlignRightCenter},
    {QStringLiteral("Stn"), 800, QStringLiteral("000"), {}, AlignRightCenter},
    {QStringLiteral("BkName"), 2000, {}, {}}};
const std::vector<ListColumn> kOthers = {{QStringLiteral("Code"), 800, {}, {}, AlignRightCenter},
                                         {QStringLiteral("Namae"), 7000, {}, {}}};

}  // namespace

Help_frm::Help_frm() : LookupForm(QStringLiteral("Help_frm")) {
    FieldLayout search(*this);
    search.row(QStringLiteral("ﾌﾘｶﾞﾅ")).text(addBox(ebox, 0, ImeMode::KatakanaHalf), 30);
    search.row(QStringLiteral("名前")).text(addBox(ebox, 1, ImeMode::Hiragana), 40);
    layOut(&search, ButtonBar(*this, Btn, {QStringLiteral("さがす"), QStringLiteral("クリア")}));
    List().SetFixedRows(0);
    List().SetRows(0);

    wireKeys(ebox, [this](int index) { return enter(index); });
    on(&Btn(0), &CommandButton::Click, [this] { this->search(); });
    on(&Btn(1), &CommandButton::Click, [this] {
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
    if (table_ == u"Hin") return QStringLiteral("SELECT Code,Namae FROM Hin ORDER BY Kana");
    if (table_ == u"Bnk") return QStringLiteral("SELECT Code,Stn,BkName From Bnk ORDER BY Code,Stn");
    return QStringLiteral("SELECT Code,Namae FROM ") + table_ + QStringLiteral(" ORDER BY Kana");
}

// A bank has neither reading nor name, so a search among banks fails in the store; only their list serves.
QString Help_frm::searchSql() const {
    const QString reading = LikeCondition(QStringLiteral("Kana"), ebox(0).Text());
    const QString name = LikeCondition(QStringLiteral("Namae"), ebox(1).Text());
    QString order;
    if (reading.isEmpty() && name.isEmpty()) {
        order = QStringLiteral(" ORDER BY Code");
    } else if (name.isEmpty()) {
        order = QStringLiteral(" ORDER BY Kana,Code");
    } else if (reading.isEmpty()) {
        order = QStringLiteral(" ORDER BY Namae,Code");
    }
    const QString select = table_ == u"Hin" ? QStringLiteral("SELECT Code,Namae FROM Hin ")
                                            : QStringLiteral("SELECT Code,Namae FROM ") + table_;
    return select + QStringLiteral(" WHERE Code>0") + reading + name + order;
}

}  // namespace akarix
