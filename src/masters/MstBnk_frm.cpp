#include "masters/MstBnk_frm.h"

namespace akarix {

namespace {

enum Field { kCode, kStn, kBkName, kStnName, kItakuCode, kItakusya, kFName, kSyurui, kKozaNo };

MasterTexts texts() {
    return ConsignorTexts(QStringLiteral("SELECT * FROM Bnk WHERE Code=%1"),
                          QStringLiteral("SELECT * FROM Bnk WHERE Code<%1 AND Code<>9900 ORDER BY Code DESC"),
                          QStringLiteral("SELECT * FROM Bnk WHERE Code>%1 AND Code<>9900 ORDER BY Code"));
}

FieldTable fields() {
    FieldTable table{
        ConsignorField(kCode, QStringLiteral("銀行コード"), QStringLiteral("Code")),
        ConsignorField(kStn, QStringLiteral("支店"), QStringLiteral("Stn")),
        ConsignorField(kBkName, QStringLiteral("銀行名"), QStringLiteral("BkName")),
        ConsignorField(kStnName, QStringLiteral("支店名"), QStringLiteral("StnName")),
        ConsignorField(kItakuCode, QStringLiteral("委託者コード"), QStringLiteral("ItakuCode")),
        ConsignorField(kItakusya, QStringLiteral("委託者名"), QStringLiteral("Itakusya")),
        ConsignorField(kFName, QStringLiteral("ファイル名"), QStringLiteral("fName")),
        ConsignorField(kSyurui, QStringLiteral("種別"), QStringLiteral("Syurui")),
        ConsignorField(kKozaNo, QStringLiteral("口座番号"), QStringLiteral("KozaNo")),
    };
    table[kCode].lookup = FieldLookup{0, QStringLiteral("Bnk"), {}};
    table[kSyurui].note = QStringLiteral("普通=1, 当座=2");
    return table;
}

}  // namespace

MstBnk_frm::MstBnk_frm()
    : ConsignorForm(QStringLiteral("MstBnk_frm"), QStringLiteral("委託銀行マスター"), texts(), fields(),
                    {{kCode, QStringLiteral("銀行コードを入れてください。")},
                     {kStn, QStringLiteral("支店を入れてください。")},
                     {kBkName, QStringLiteral("銀行名を入れてください。")},
                     {kStnName, QStringLiteral("支店名を入れてください。")},
                     {kItakuCode, QStringLiteral("委託者コードを入れてください。")},
                     {kItakusya, QStringLiteral("委託者名を入れてください。")},
                     {kFName, QStringLiteral("ファイル名を入れてください。")},
                     {kSyurui, QStringLiteral("種別を入れてください。")},
                     {kKozaNo, QStringLiteral("口座番号を入れてください。")}}) {}

}  // namespace akarix
