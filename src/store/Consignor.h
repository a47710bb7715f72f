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

/// Fill the first nine members, or all twelve; when the row is missing everything stays as it was given.
void LoadBankConsignor(int code, Consignor& consignor);
void LoadPostConsignor(Consignor& consignor);

}  // namespace akarix
