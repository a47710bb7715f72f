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

MasterTexts Texts() {
    // The whole table: the way back to the post office must be open from any row.
    return ConsignorTexts(u"SELECT * FROM Bnk WHERE Code =%1"_s,
                          u"SELECT * FROM Bnk WHERE Code<%1 ORDER BY Code DESC"_s,
                          u"SELECT * FROM Bnk WHERE Code>%1 ORDER BY Code"_s);
}

FieldTable Fields() {
    FieldTable table{
        ConsignorField(kCode, u"コード"_s, u"Code"_s),
        ConsignorField(kBkName, u"郵便局"_s, u"BkName"_s),
        ConsignorField(kItakuCode, u"委託者コード"_s, u"ItakuCode"_s),
        ConsignorField(kItakusya, u"委託者名"_s, u"Itakusya"_s),
        ConsignorField(kFName, u"ファイル名"_s, u"fName"_s),
        ConsignorField(kKozaNo, u"口座番号"_s, u"KozaNo"_s),
        ConsignorField(kStn, u"支店"_s, u"Stn"_s),
        ConsignorField(kStnName, u"支店名"_s, u"StnName"_s),
        ConsignorField(kSaifurikae, u"再振替日"_s, u"Saifurikae"_s),
        ConsignorField(kKeiyaku, u"契約種別"_s, u"Keiyaku"_s),
        ConsignorField(kJimusyo, u"受入事務センター"_s, u"Jimusyo"_s),
    };
    table[kSaifurikae].note = u"日"_s;
    return table;
}

}  // namespace

MstYubin_frm::MstYubin_frm()
    : ConsignorForm(u"MstYubin_frm"_s, u"委託郵便局マスター"_s, Texts(), Fields(),
                    {{kBkName, u"郵便局を入れてください。"_s},
                     {kItakuCode, u"委託者コードを入れてください。"_s},
                     {kItakusya, u"委託者名を入れてください。"_s},
                     {kFName, u"ファイル名を入れてください。"_s},
                     {kKozaNo, u"口座番号を入れてください。"_s},
                     {kStn, u"支店を入れてください。"_s}}) {}

QString MstYubin_frm::proposedCode() {
    return u"9900"_s;
}

void MstYubin_frm::showDefaults() {
    ebox(kBkName).SetText(u"ﾕｳｾｲｼﾖｳﾁﾖｷﾝｷﾖｸ"_s);
    ebox(kFName).SetText(u"jiharai"_s);
}

bool MstYubin_frm::maySave() {
    constexpr int kCodeLength = 4;
    if (ebox(kCode).Text().size() != kCodeLength) return refuse(u"コードを入れてください。"_s, kCode);
    return ConsignorForm::maySave();
}

}  // namespace akarix
