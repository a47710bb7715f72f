#include "toolkit/Help_frm.h"

namespace akarix {

namespace {

const GridColumn kCode = {u"", 800, AlignRightCenter, u"Code"};
const GridColumns kGoods = {kCode, {u"", 4000, AlignLeftCenter, u"Namae"}};
const GridColumns kBanks = {{u"", 800, AlignRightCenter, u"Code", Masked(u"0000"_s)},
                            {u"", 800, AlignRightCenter, u"Stn", Masked(u"000"_s)},
                            {u"", 2000, AlignLeftCenter, u"BkName"}};
const GridColumns kOthers = {kCode, {u"", 7000, AlignLeftCenter, u"Namae"}};

}  // namespace

Help_frm::Help_frm() : LookupForm(u"Help_frm"_s) {
    FieldLayout search(*this);
    addWords(search);
    List().SetFixedRows(0);
    emptyList();
    layOut(&search, buttonBar({{0, u"さがす"_s, [this] { fill(searchSql()); }},
                               {1, u"クリア"_s, [this] { clear(); }}}));
}

void Help_frm::Start(const QString& table) {
    table_ = table;
    begin();
    const bool banks = table == u"Bnk";
    showColumns(banks ? kBanks : table == u"Hin" ? kGoods : kOthers);
    fill(banks ? u"SELECT Code,Stn,BkName From Bnk ORDER BY Code,Stn"_s
               : u"SELECT Code,Namae FROM "_s + table + u" ORDER BY Kana"_s);
}

// A bank has neither reading nor name, so a search among banks fails in the store; only their list serves.
QString Help_frm::searchSql() const {
    const QString reading = readingCondition();
    const QString name = nameCondition();
    QString order;
    if (reading.isEmpty() && name.isEmpty())
        order = u" ORDER BY Code"_s;
    else if (name.isEmpty())
        order = u" ORDER BY Kana,Code"_s;
    else if (reading.isEmpty())
        order = u" ORDER BY Namae,Code"_s;
    return u"SELECT Code,Namae FROM "_s + table_ + u" WHERE Code>0"_s + reading + name + order;
}

}  // namespace akarix
