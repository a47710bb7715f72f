#include "store/Consignor.h"

#include "platform/runtime/Format.h"
#include "platform/runtime/Literals.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"
#include "values/Text.h"

namespace akarix {

namespace {

/// Null stays empty: a branch that nobody has entered must not pass for the branch 000.
QString Digits(const Variant& number, const QString& mask) {
    return number.IsNull() ? QString() : Format(number, mask);
}

Consignor ReadBankPart(const Recordset& set) {
    Consignor consignor;
    const auto text = [&set](const QString& column) { return NullToEmpty(set[column]); };
    consignor.ItakuCode = text(u"ItakuCode"_s);
    consignor.Itakusya = text(u"Itakusya"_s);
    consignor.fName = text(u"fName"_s);
    consignor.Bnk = Digits(set[u"Code"_s], u"0000"_s);
    consignor.BkName = text(u"BkName"_s);
    consignor.Stn = Digits(set[u"Stn"_s], u"000"_s);
    consignor.StnName = text(u"StnName"_s);
    consignor.Syurui = text(u"Syurui"_s);
    consignor.KozaNo = text(u"KozaNo"_s);
    return consignor;
}

}  // namespace

Consignor LoadBankConsignor(int code) {
    const Recordset set = gDb->OpenRecordset(u"SELECT * FROM Bnk WHERE Code="_s + NumStr(code));
    return set.Eof() ? Consignor() : ReadBankPart(set);
}

Consignor LoadPostConsignor() {
    const Recordset set = gDb->OpenRecordset(u"SELECT * FROM Bnk WHERE Code=9900"_s);
    if (set.Eof()) return {};
    Consignor consignor = ReadBankPart(set);
    consignor.Saifurikae = NullToEmpty(set[u"Saifurikae"_s]);
    consignor.Keiyaku = NullToEmpty(set[u"Keiyaku"_s]);
    consignor.Jimusyo = NullToEmpty(set[u"Jimusyo"_s]);
    return consignor;
}

}  // namespace akarix
