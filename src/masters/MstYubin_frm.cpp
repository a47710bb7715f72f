#include "masters/MstYubin_frm.h"

namespace akarix {

namespace {

enum Field {
    kCode,
    kBkName,
    kItakuCode,
    kItakusya,
    kFName,
    kKozaNo,
    kStn,
    kStnName,
    kSaifurikae,
    kKeiyaku,
    kJimusyo
};

MasterTexts texts() {
    // The whole table: the way back to the post office must be open from any row.
    return ConsignorTexts(QStringLiteral("SELECT * FROM Bnk WHERE Code =%1"),
                          QStringLiteral("SELECT * FROM Bnk WHERE Code<%1 ORDER BY Code DESC"),
                          QStringLiteral("SELECT * FROM Bnk WHERE Code>%1 ORDER BY Code"));
}

FieldTable fields() {
    FieldTable table{
        ConsignorField(kCode, QStringLiteral("コード"), QStringLiteral("Code")),
        ConsignorField(kBkName, QStringLiteral("郵便局"), QStringLiteral("BkName")),
        ConsignorField(kItakuCode, QStringLiteral("委託者コード"), QStringLiteral("ItakuCode")),
        ConsignorField(kItakusya, QStringLiteral("委託者名"), QStringLiteral("Itakusya")),
        ConsignorField(kFName, QStringLiteral("ファイル名"), QStringLiteral("fName")),
        ConsignorField(kKozaNo, QStringLiteral("口座番号"), QStringLiteral("KozaNo")),
        ConsignorField(kStn, QStringLiteral("支店"), QStringLiteral("Stn")),
        ConsignorField(kStnName, QStringLiteral("支店名"), QStringLiteral("StnName")),
        ConsignorField(kSaifurikae, QStringLiteral("再振替日"), QStringLiteral("Saifurikae")),
        ConsignorField(kKeiyaku, QStringLiteral("契約種別"), QStringLiteral("Keiyaku")),
        ConsignorField(kJimusyo, QStringLiteral("受入事務センター"), QStringLiteral("Jimusyo")),
    };
    table[kSaifurikae].note = QStringLiteral("日");
    return table;
}

}  // namespace

MstYubin_frm::MstYubin_frm()
    : ConsignorForm(QStringLiteral("MstYubin_frm"), QStringLiteral("委託郵便局マスター"), texts(), fields(),
                    {{kBkName, QStringLiteral("郵便局を入れてください。")},
                     {kItakuCode, QStringLiteral("委託者コードを入れてください。")},
                     {kItakusya, QStringLiteral("委託者名を入れてください。")},
                     {kFName, QStringLiteral("ファイル名を入れてください。")},
                     {kKozaNo, QStringLiteral("口座番号を入れてください。")},
                     {kStn, QStringLiteral("支店を入れてください。")}}) {}

QString MstYubin_frm::proposedCode() {
    return QStringLiteral("9900");
}

void MstYubin_frm::showDefaults() {
    ebox(kBkName).SetText(QStringLiteral("ﾕｳｾｲｼﾖｳﾁﾖｷﾝｷﾖｸ"));
    ebox(kFName).SetText(QStringLiteral("jiharai"));
}

bool MstYubin_frm::maySave() {
    constexpr int kCodeLength = 4;
    if (ebox(kCode).Text().size() != kCodeLength) {
        return refuse(QStringLiteral("コードを入れてください。"), kCode);
    }
    return ConsignorForm::maySave();
}

}  // namespace akarix
