#pragma once

#include <QString>

namespace akarix {

/// The dealer as a customer of a collecting bank.
struct Consignor {
    QString ItakuCode;
    QString Itakusya;
    QString fName;
    QString Bnk;  ///< four digits
    QString BkName;
    QString Stn;  ///< three digits; empty when none is entered
    QString StnName;
    QString Syurui;
    QString KozaNo;
    // The post office alone.
    QString Saifurikae;
    QString Keiyaku;
    QString Jimusyo;
};

/// A bank's has the first nine members, the post office's all twelve; empty when the row is missing.
Consignor LoadBankConsignor(int code);
Consignor LoadPostConsignor();

}  // namespace akarix
