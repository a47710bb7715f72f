#include "store/Consignor.h"

#include "platform/runtime/Format.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"
#include "values/Text.h"

namespace akarix {

namespace {

/// Null stays empty: a branch that nobody has entered must not pass for the branch 000.
QString digits(const Variant& number, const QString& mask) {
    return number.IsNull() ? QString() : Format(number, mask);
}

void readBankPart(const Recordset& set, Consignor& consignor) {
    const auto text = [&set](const QString& column) { return NullToEmpty(set[column]); };
    consignor.ItakuCode = text(QStringLiteral("ItakuCode"));
    consignor.Itakusya = text(QStringLiteral("Itakusya"));
    consignor.fName = text(QStringLiteral("fName"));
    consignor.Bnk = digits(set[QStringLiteral("Code")], QStringLiteral("0000"));
    consignor.BkName = text(QStringLiteral("BkName"));
    consignor.Stn = digits(set[QStringLiteral("Stn")], QStringLiteral("000"));
    consignor.StnName = text(QStringLiteral("StnName"));
    consignor.Syurui = text(QStringLiteral("Syurui"));
    consignor.KozaNo = text(QStringLiteral("KozaNo"));
}

}  // namespace

void LoadBankConsignor(int code, Consignor& consignor) {
    Recordset set = gDb->OpenRecordset(QStringLiteral("SELECT * FROM Bnk WHERE Code=") + NumStr(code));
    if (!set.Eof()) readBankPart(set, consignor);
    set.Close();
}

void LoadPostConsignor(Consignor& consignor) {
    Recordset set = gDb->OpenRecordset(QStringLiteral("SELECT * FROM Bnk WHERE Code=9900"));
    if (!set.Eof()) {
        readBankPart(set, consignor);
        consignor.Saifurikae = NullToEmpty(set[QStringLiteral("Saifurikae")]);
        consignor.Keiyaku = NullToEmpty(set[QStringLiteral("Keiyaku")]);
        consignor.Jimusyo = NullToEmpty(set[QStringLiteral("Jimusyo")]);
    }
    set.Close();
}

}  // namespace akarix
